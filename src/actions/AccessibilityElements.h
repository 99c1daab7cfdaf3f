#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "actions/Workspace.h"
#include "support/Seconds.h"

namespace kinesta {

class AccessibilityElement;

/// A reference to an element of an application. Two handles may refer to the same element.
using AccessibilityElementHandle = std::unique_ptr<AccessibilityElement>;

/// A list value. Items that are not elements are null.
struct AccessibilityList {
    std::vector<AccessibilityElementHandle> items;
};

/// A value of any other type.
struct OtherAccessibilityValue {};

/// The attribute could not be read: not supported, no value, timeout, or the application has ended.
struct AccessibilityFailure {};

/// The result of reading an attribute.
using AccessibilityValue = std::variant<AccessibilityFailure, AccessibilityElementHandle, AccessibilityList,
                                        std::string, bool, OtherAccessibilityValue>;

/// An element of another application's interface: the application, a window, a button, a menu item. Main thread only.
class AccessibilityElement {
  public:
    virtual ~AccessibilityElement() = default;

    /// Limits how long the next requests to this element wait for the application (above 0). False if that fails.
    virtual bool setMessagingTimeout(Seconds timeout) = 0;

    /// Reads an attribute by its accessibility name, such as "AXChildren".
    virtual AccessibilityValue copyAttribute(std::string_view name) = 0;

    /// Performs an action by its accessibility name, such as "AXPress". Whether that succeeded.
    virtual bool performAction(std::string_view name) = 0;
};

/// The port to the interfaces of other applications. Main thread only.
class AccessibilityElements {
  public:
    virtual ~AccessibilityElements() = default;

    /// The root element of an application; null if there is none. Sends no request to the application.
    virtual AccessibilityElementHandle applicationElement(ProcessIdentifier application) = 0;
};

}  // namespace kinesta
