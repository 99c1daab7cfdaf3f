#include "platform/macos/foundation/NotificationObservation.h"

namespace kinesta {

NotificationObservation::NotificationObservation(NSNotificationCenter* center, NSNotificationName name,
                                                 std::function<void()> posted)
    : m_center(center) {
    const auto call = std::move(posted);
    m_token = [center addObserverForName:name
                                  object:nil
                                   queue:nil
                              usingBlock:^(NSNotification*) {
                                call();
                              }];
}

NotificationObservation::~NotificationObservation() { [m_center removeObserver:m_token]; }

}  // namespace kinesta
