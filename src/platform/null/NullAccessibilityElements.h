#pragma once

#include "actions/AccessibilityElements.h"

namespace kinesta {

/// Sees no application.
class NullAccessibilityElements final : public AccessibilityElements {
  public:
    AccessibilityElementHandle applicationElement(ProcessIdentifier) override { return nullptr; }
};

}  // namespace kinesta
