#include "platform/macos/application/MacApplicationNotifications.h"

#include <Foundation/Foundation.h>

#include <map>
#include <string>
#include <utility>

#include "actions/InProcessNotifications.h"
#include "platform/macos/foundation/NsText.h"

namespace kinesta {

/// The center calls its observers in no promised order. So it has one of ours for a name, and that calls the rest.
struct MacApplicationNotifications::Observations {
    std::shared_ptr<InProcessNotifications> observers = std::make_shared<InProcessNotifications>();
    std::map<std::string, id<NSObject>, std::less<>> tokens;
};

MacApplicationNotifications::MacApplicationNotifications() : m_observations(std::make_unique<Observations>()) {}

MacApplicationNotifications::~MacApplicationNotifications() {
    for (const auto& [name, token] : m_observations->tokens)
        [NSNotificationCenter.defaultCenter removeObserver:token];
}

void MacApplicationNotifications::post(std::string_view name, ActionKind object) {
    [NSNotificationCenter.defaultCenter postNotificationName:nsText(name) object:nsText(rawValue(object))];
}

Subscription MacApplicationNotifications::observe(std::string_view name, Observer observer) {
    if (!m_observations->tokens.contains(name)) {
        const std::weak_ptr<InProcessNotifications> weakObservers = m_observations->observers;
        const std::string key(name);
        // Without a queue it is called before the post returns.
        id<NSObject> const token = [NSNotificationCenter.defaultCenter
            addObserverForName:nsText(name)
                        object:nil
                         queue:nil
                    usingBlock:^(NSNotification* notification) {
                      id const object = notification.object;
                      const auto kind = [object isKindOfClass:[NSString class]]
                                            ? fromRawValue<ActionKind>(textOf(static_cast<NSString*>(object)))
                                            : std::nullopt;
                      const auto observers = weakObservers.lock();
                      if (kind && observers)
                          observers->post(key, *kind);
                    }];
        m_observations->tokens.emplace(key, token);
    }
    return m_observations->observers->observe(name, std::move(observer));
}

}  // namespace kinesta
