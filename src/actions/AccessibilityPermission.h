#pragma once

namespace kinesta {

/// The port to the permission to post events and to act on other applications' windows. Main thread only.
class AccessibilityPermission {
  public:
    virtual ~AccessibilityPermission() = default;

    /// Whether the permission is granted. Never prompts; cheap enough for every action.
    virtual bool isTrusted() = 0;

    /// Prompts the user if the permission is missing. Returns whether it is granted, without waiting for the answer.
    /// Called at every attempt, so prompts must not pile up.
    virtual bool prompt() = 0;
};

}  // namespace kinesta
