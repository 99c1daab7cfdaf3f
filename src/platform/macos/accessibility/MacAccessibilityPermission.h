#pragma once

#include "actions/AccessibilityPermission.h"

namespace kinesta {

/// The permission under Privacy & Security › Accessibility. prompt() returns at once; that the system shows one prompt
/// for any number of calls is not tried yet. Main thread only.
class MacAccessibilityPermission final : public AccessibilityPermission {
  public:
    bool isTrusted() override;
    bool prompt() override;
};

}  // namespace kinesta
