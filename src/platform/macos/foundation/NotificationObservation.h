#pragma once

#include <Foundation/Foundation.h>

#include <functional>

namespace kinesta {

/// Calls a function for each notification of one name until this is destroyed, on the thread that posts it: the center
/// keeps the block as long (from memory). For Objective-C++ files only.
class NotificationObservation {
  public:
    /// The function must not own this observation.
    NotificationObservation(NSNotificationCenter* center, NSNotificationName name, std::function<void()> posted);
    NotificationObservation(const NotificationObservation&) = delete;
    NotificationObservation& operator=(const NotificationObservation&) = delete;
    ~NotificationObservation();

  private:
    NSNotificationCenter* m_center;
    id<NSObject> m_token;
};

}  // namespace kinesta
