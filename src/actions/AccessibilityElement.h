#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "support/Seconds.h"

namespace kinesta {

class AccessibilityElement;

/// The hold on an element; the element itself lives in its application. Two holds may be of one element.
using AccessibilityElementHandle = std::unique_ptr<AccessibilityElement>;

/// A list value. A null stands for an item that is no element.
struct AccessibilityList {
    std::vector<AccessibilityElementHandle> items;
};

/// A value of a type that nobody here asks for.
struct OtherAccessibilityValue {};

/// The attribute could not be read: not supported, no value, no answer in time, or the application is gone.
struct AccessibilityFailure {};

/// What reading an attribute gives.
using AccessibilityValue = std::variant<AccessibilityFailure, AccessibilityElementHandle, AccessibilityList,
                                        std::string, bool, OtherAccessibilityValue>;

/// A part of another application's interface: the application itself, a window, a button, a menu item. Main thread
/// only.
class AccessibilityElement {
  public:
    virtual ~AccessibilityElement() = default;

    /// Bounds how long the next requests to this element may wait for the application, in seconds, above 0. False if
    /// that cannot be set.
    virtual bool setMessagingTimeout(Seconds timeout) = 0;

    /// Reads an attribute by its accessibility name, such as "AXChildren".
    virtual AccessibilityValue copyAttribute(std::string_view name) = 0;

    /// Performs an action by its accessibility name, such as "AXPress"; whether the application took it.
    virtual bool performAction(std::string_view name) = 0;
};

}  // namespace kinesta
