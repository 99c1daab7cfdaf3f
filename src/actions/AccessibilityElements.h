#pragma once

#include "actions/AccessibilityElement.h"
#include "actions/Workspace.h"

namespace kinesta {

/// The port to the interfaces of other applications. Main thread only.
class AccessibilityElements {
  public:
    virtual ~AccessibilityElements() = default;

    /// The element at the root of an application's interface; null if there is none. Asks the application nothing.
    virtual AccessibilityElementHandle applicationElement(ProcessIdentifier application) = 0;
};

}  // namespace kinesta
