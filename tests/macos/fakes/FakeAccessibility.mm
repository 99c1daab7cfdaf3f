// Trust, and elements of other applications: each request goes on to the applications that the test shows.
#include <ApplicationServices/ApplicationServices.h>
#include <Foundation/Foundation.h>

#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "CFakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

using namespace kinesta;
using namespace kinesta::fakes;

namespace {

struct OtherSide {
    bool isTrusted = false;
    AccessibilityElements* applications = nullptr;
    std::map<const void*, AccessibilityElementHandle> elements;
};

OtherSide& other() {
    static auto& side = *new OtherSide;
    return side;
}

const OnReset accessibility([] { other() = {}; });

AXUIElementRef makeElement(AccessibilityElementHandle handle) {
    if (!handle)
        return nullptr;
    const void* const element = objc::makeCObject("AXUIElement");
    other().elements[element] = std::move(handle);
    return static_cast<AXUIElementRef>(element);
}

AccessibilityElement& behind(AXUIElementRef element) {
    objc::kindOf(element);
    return *other().elements.at(element);
}

/// What is no element is null or a number, by turns.
CFTypeRef makeArray(AccessibilityList& list) {
    std::vector<id> items;
    for (AccessibilityElementHandle& item : list.items) {
        if (item)
            items.push_back((__bridge_transfer id)makeElement(std::move(item)));
        else
            items.push_back(items.size() % 2 > 0 ? nil : [NSNumber numberWithInt:1]);
    }
    const void* const first = items.data();
    return (__bridge_retained CFTypeRef)[NSArray arrayWithObjects:static_cast<const id __unsafe_unretained*>(first)
                                                            count:items.size()];
}

/// Null for a failure.
CFTypeRef makeValue(AccessibilityValue value) {
    if (auto* const element = std::get_if<AccessibilityElementHandle>(&value))
        return makeElement(std::move(*element));
    if (auto* const list = std::get_if<AccessibilityList>(&value))
        return makeArray(*list);
    if (const auto* const text = std::get_if<std::string>(&value))
        return (__bridge_retained CFTypeRef)[NSString stringWithUTF8String:text->c_str()];
    if (const auto* const boolean = std::get_if<bool>(&value))
        return CFRetain(*boolean ? kCFBooleanTrue : kCFBooleanFalse);
    return std::holds_alternative<AccessibilityFailure>(value)
               ? nullptr
               : (__bridge_retained CFTypeRef)[NSNumber numberWithInt:1];
}

std::string textOf(CFStringRef string) { return ((__bridge NSString*)string).UTF8String; }

}  // namespace

void kinesta::fakes::setTrusted(bool isTrusted) { other().isTrusted = isTrusted; }
void kinesta::fakes::showApplications(AccessibilityElements* applications) { other().applications = applications; }

extern "C" {

CFStringRef kAXTrustedCheckOptionPrompt = CFSTR("AXTrustedCheckOptionPrompt");

Boolean AXIsProcessTrusted() {
    RECORD_CALL("AXIsProcessTrusted");
    return other().isTrusted ? 0x80 : 0;
}
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    id const prompt = ((__bridge NSDictionary*)options)[@"AXTrustedCheckOptionPrompt"];
    RECORD_CALL("AXIsProcessTrustedWithOptions " + objc::describe((__bridge void*)prompt));
    return other().isTrusted ? 0x80 : 0;
}

CFTypeID AXUIElementGetTypeID() { return typeNamed("AXUIElement"); }
AXUIElementRef AXUIElementCreateApplication(pid_t pid) {
    return isToFail("AXUIElementCreateApplication") ? nullptr
                                                    : makeElement(other().applications->applicationElement(pid));
}
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds) {
    const bool isSet = behind(element).setMessagingTimeout(std::round(seconds * 1e6) / 1e6);
    return isSet ? kAXErrorSuccess : kAXErrorInvalidUIElement;
}
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute, CFTypeRef* value) {
    @autoreleasepool {
        const bool isNull = isToFail("AXUIElementCopyAttributeValue");
        *value = isNull ? nullptr : makeValue(behind(element).copyAttribute(textOf(attribute)));
        if (*value || isNull)
            return kAXErrorSuccess;
        *value = kCFBooleanTrue;  // means nothing beside an error, and is not the caller's
        return kAXErrorCannotComplete;
    }
}
AXError AXUIElementPerformAction(AXUIElementRef element, CFStringRef action) {
    return behind(element).performAction(textOf(action)) ? kAXErrorSuccess : kAXErrorCannotComplete;
}

}  // extern "C"
