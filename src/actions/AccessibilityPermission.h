#pragma once

namespace kinesta {

/// The port to the permission without which no event is posted and no other application's window is touched. Main
/// thread only.
class AccessibilityPermission {
  public:
    virtual ~AccessibilityPermission() = default;

    /// Whether the permission is there now. Asks nobody; cheap enough for every action.
    virtual bool isTrusted() = 0;

    /// Asks the person for the permission if it is missing, and tells whether it is there. Does not wait for the
    /// answer; called at every attempt, so it must not pile up prompts on the screen.
    virtual bool prompt() = 0;
};

}  // namespace kinesta
