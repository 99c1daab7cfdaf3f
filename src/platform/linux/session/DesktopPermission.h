#pragma once

#include <functional>
#include <string>

#include "actions/AccessibilityPermission.h"
#include "platform/linux/keyboard/InputPoster.h"
#include "platform/linux/session/DesktopNotifications.h"

namespace kinesta {

/// Permission is granted while posting works. If it does not, the prompt is a notification that says how to fix it.
/// Main thread only.
class DesktopPermission final : public AccessibilityPermission {
  public:
    /// Returns what prevents posting now and the command that fixes it.
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
