#pragma once

#include <functional>
#include <string>

#include "actions/AccessibilityPermission.h"
#include "platform/linux/keyboard/InputPoster.h"
#include "platform/linux/session/DesktopNotifications.h"

namespace kinesta {

/// There is permission where posting works. Where it does not, the prompt is a notification that says how to mend it.
/// Main thread only.
class DesktopPermission final : public AccessibilityPermission {
  public:
    /// Says what stands in the way and the command that mends it, as it is now.
    using Remedy = std::function<std::string()>;

    /// The poster and the notifications must outlive this.
    DesktopPermission(InputPoster& poster, DesktopNotifications& notifications, Remedy remedy);

    bool isTrusted() override { return m_poster.isAvailable(); }
    bool prompt() override;

  private:
    InputPoster& m_poster;
    DesktopNotifications& m_notifications;
    Remedy m_remedy;
};

}  // namespace kinesta
