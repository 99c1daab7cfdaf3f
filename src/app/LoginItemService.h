#pragma once

#include "support/Result.h"

namespace kinesta {

enum class LoginItemStatus {
    notRegistered,
    enabled,
    /// Registered, but switched off by the person or the desktop.
    requiresApproval,
    /// Registered with a program that is not there.
    notFound
};

/// The port to the system's register of what starts at login. Main thread only.
class LoginItemService {
  public:
    virtual ~LoginItemService() = default;

    virtual LoginItemStatus status() const = 0;
    virtual Outcome registerItem() = 0;
    virtual Outcome unregisterItem() = 0;
    /// Opens the place where the person approves login items. The error is a sentence that says where to go instead.
    virtual Outcome openSettings() = 0;
};

}  // namespace kinesta
