#pragma once

#include "actions/AccessibilityElements.h"

namespace kinesta {

/// The interfaces of other applications. A request waits until the application answers, at most for the timeout of the
/// very handle that it goes to: an element that is read again starts with the system's 6 seconds. Main thread only.
class MacAccessibilityElements final : public AccessibilityElements {
  public:
    AccessibilityElementHandle applicationElement(ProcessIdentifier application) override;
};

}  // namespace kinesta
