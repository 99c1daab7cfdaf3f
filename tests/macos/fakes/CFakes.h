#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <map>
#include <string>

#include "actions/AccessibilityElements.h"

/// The fakes of the platform's C functions. All is undone by reset().
namespace kinesta::fakes {

// What a test does in the platform's place

/// From now on calls that begin with this text give null or an error: "CGEventCreateKeyboardEvent", or the whole line
/// of one event.
void makeFail(const std::string& call);

/// Whether the person has granted the accessibility permission. They have not, at first.
void setTrusted(bool isTrusted);

/// The applications on the other side of accessibility; requests for their elements go on to these.
void showApplications(AccessibilityElements* applications);

/// What the keys of the layout in use type, by key code. A dead key types nothing; at first no key types anything.
void setKeyboardLayout(std::map<int, std::u16string> characters);

// What the fakes know together

bool isToFail(const std::string& call);
/// The identifier of a kind of C object, such as "AXUIElement".
CFTypeID typeNamed(const std::string& kind);

}  // namespace kinesta::fakes
