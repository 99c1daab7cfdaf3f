#include "platform/macos/pointer/MacPointerEventMonitoring.h"

#include <AppKit/AppKit.h>

#include <optional>
#include <utility>

namespace kinesta {
namespace {

using Kind = PointerEvent::Kind;

constexpr NSEventMask kMask = NSEventMaskLeftMouseDown | NSEventMaskLeftMouseUp | NSEventMaskRightMouseDown |
                              NSEventMaskRightMouseUp | NSEventMaskPressure;
static_assert(kMask == 0x40000001E);

std::optional<PointerEvent> pointerEvent(NSEvent* event) {
    const NSTimeInterval time = event.timestamp;
    switch (event.type) {
        case NSEventTypeLeftMouseDown:
            return PointerEvent{.kind = Kind::leftDown, .timestamp = time};
        case NSEventTypeLeftMouseUp:
            return PointerEvent{.kind = Kind::leftUp, .timestamp = time};
        case NSEventTypeRightMouseDown:
            return PointerEvent{.kind = Kind::rightDown, .timestamp = time};
        case NSEventTypeRightMouseUp:
            return PointerEvent{.kind = Kind::rightUp, .timestamp = time};
        case NSEventTypePressure:
            // Other events raise an exception when asked for a stage.
            return PointerEvent{.kind = Kind::pressure, .stage = event.stage, .timestamp = time};
        default:
            return std::nullopt;
    }
}

}  // namespace

struct MacPointerEventMonitoring::Monitor {
    /// The platform may be in the middle of an event when the monitor ends.
    static void deliver(const std::weak_ptr<Monitor>& monitor, NSEvent* event) {
        const auto living = monitor.lock();
        const auto pointer = living ? pointerEvent(event) : std::nullopt;
        if (pointer)
            living->handler(*pointer);
    }

    Handler handler;
    id token = nil;
};

PointerEventMonitor MacPointerEventMonitoring::monitor(PointerEventScope scope, Handler handler) {
    const auto monitor = std::make_shared<Monitor>();
    monitor->handler = std::move(handler);
    const std::weak_ptr<Monitor> weakMonitor = monitor;
    // Without an application object, as in the command line, no events come from the window server (from memory).
    (void)NSApplication.sharedApplication;
    // Nil if the platform refuses. Pressure of other applications' clicks is expected to reach a global monitor, and
    // without a permission (from memory).
    if (scope == PointerEventScope::otherApplications)
        monitor->token = [NSEvent addGlobalMonitorForEventsMatchingMask:kMask
                                                                handler:^(NSEvent* event) {
                                                                  Monitor::deliver(weakMonitor, event);
                                                                }];
    else
        monitor->token = [NSEvent addLocalMonitorForEventsMatchingMask:kMask
                                                               handler:^NSEvent*(NSEvent* event) {
                                                                 Monitor::deliver(weakMonitor, event);
                                                                 return event;
                                                               }];
    m_monitors.emplace(++m_lastId, monitor);
    return {this, m_lastId};
}

void MacPointerEventMonitoring::cancel(std::uint64_t id) {
    // A handler may cancel its own monitor, and may own what ends others: it is destroyed last.
    const auto cancelled = m_monitors.extract(id);
    if (cancelled && cancelled.mapped()->token)
        [NSEvent removeMonitor:cancelled.mapped()->token];
}

}  // namespace kinesta
