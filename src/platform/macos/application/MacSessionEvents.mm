#include "platform/macos/application/MacSessionEvents.h"

#include <AppKit/AppKit.h>

#include <utility>
#include <vector>

namespace kinesta {

struct MacSessionEvents::Observations : std::enable_shared_from_this<Observations> {
    explicit Observations(const ApplicationEvents& applicationEvents) : events(applicationEvents) {}

    void receive(NSNotification* notification, ApplicationEvent event) const {
        // Panels, menus and tool tips come and go without any effect on the application.
        id const object = notification.object;
        const bool isMinor =
            [object isKindOfClass:[NSWindow class]] && !static_cast<NSWindow*>(object).canBecomeMainWindow;
        if (!isMinor)
            events.post(event);
    }

    void observe(NSNotificationCenter* center, NSNotificationName name, ApplicationEvent event) {
        const std::weak_ptr<Observations> weakSelf = weak_from_this();
        id<NSObject> const token = [center addObserverForName:name
                                                       object:nil
                                                        queue:NSOperationQueue.mainQueue
                                                   usingBlock:^(NSNotification* notification) {
                                                     if (const auto self = weakSelf.lock())
                                                         self->receive(notification, event);
                                                   }];
        tokens.emplace_back(center, token);
    }

    void end() const {
        // Each from its own center: another would not know the token, and say nothing.
        for (const auto& [center, token] : tokens)
            [center removeObserver:token];
    }

    const ApplicationEvents& events;
    std::vector<std::pair<NSNotificationCenter*, id<NSObject>>> tokens;
};

MacSessionEvents::MacSessionEvents(const ApplicationEvents& events)
    : m_observations(std::make_shared<Observations>(events)) {
    NSNotificationCenter* const center = NSNotificationCenter.defaultCenter;
    m_observations->observe(center, NSWindowWillCloseNotification, ApplicationEvent::windowWillClose);
    m_observations->observe(center, NSWindowDidBecomeKeyNotification, ApplicationEvent::windowDidBecomeKey);
    m_observations->observe(center, NSApplicationDidBecomeActiveNotification, ApplicationEvent::didBecomeActive);
    m_observations->observe(center, NSApplicationDidHideNotification, ApplicationEvent::windowDidChangeVisibility);
    m_observations->observe(center, NSApplicationDidUnhideNotification, ApplicationEvent::windowDidChangeVisibility);
    // The workspace has a center of its own; the default one never posts it.
    m_observations->observe(NSWorkspace.sharedWorkspace.notificationCenter, NSWorkspaceDidWakeNotification,
                            ApplicationEvent::didWake);
}

MacSessionEvents::~MacSessionEvents() { m_observations->end(); }

}  // namespace kinesta
