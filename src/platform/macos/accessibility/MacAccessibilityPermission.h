#pragma once

#include "actions/AccessibilityPermission.h"

namespace kinesta {

/// The permission under Privacy & Security › Accessibility. The system shows its prompt at most once at a time, and
/// on its own: prompt() returns at once. Main thread only.
class MacAccessibilityPermission final : public AccessibilityPermission {
  public:
    bool isTrusted() override;
    bool prompt() override;
};

}  // namespace kinesta
