#pragma once

#include "actions/AccessibilityPermission.h"

namespace kinesta {

/// Never there, and there is nobody to ask.
class NullAccessibilityPermission final : public AccessibilityPermission {
  public:
    bool isTrusted() override { return false; }
    bool prompt() override { return false; }
};

}  // namespace kinesta
