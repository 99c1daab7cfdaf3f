#include "platform/macos/accessibility/MacAccessibilityElements.h"

#include <ApplicationServices/ApplicationServices.h>

#include <string>
#include <utility>

#include "platform/macos/corefoundation/CfText.h"

namespace kinesta {
namespace {

AccessibilityValue valueOf(CFTypeRef value);

class Element final : public AccessibilityElement {
  public:
    explicit Element(CfReference<AXUIElementRef> element) : m_element(std::move(element)) {}

    bool setMessagingTimeout(Seconds timeout) override {
        const auto seconds = static_cast<float>(timeout);
        // The system takes 0 for its default, which is far longer.
        return seconds > 0 && AXUIElementSetMessagingTimeout(m_element.get(), seconds) == kAXErrorSuccess;
    }

    AccessibilityValue copyAttribute(std::string_view name) override {
        const auto attribute = cfString(std::string(name));
        CFTypeRef copied = nullptr;
        if (!attribute || AXUIElementCopyAttributeValue(m_element.get(), attribute.get(), &copied) != kAXErrorSuccess)
            return AccessibilityFailure{};
        const CfReference<CFTypeRef> value(copied);
        return valueOf(value.get());
    }

    bool performAction(std::string_view name) override {
        const auto action = cfString(std::string(name));
        return action && AXUIElementPerformAction(m_element.get(), action.get()) == kAXErrorSuccess;
    }

  private:
    CfReference<AXUIElementRef> m_element;
};

/// Null for null and for what is no element.
AccessibilityElementHandle handleOf(CFTypeRef value) {
    if (!value || CFGetTypeID(value) != AXUIElementGetTypeID())
        return nullptr;
    return std::make_unique<Element>(retained(static_cast<AXUIElementRef>(value)));
}

AccessibilityList listOf(CFArrayRef array) {
    AccessibilityList list;
    const CFIndex count = CFArrayGetCount(array);
    list.items.reserve(static_cast<std::size_t>(count));
    for (CFIndex i = 0; i < count; ++i)
        list.items.push_back(handleOf(CFArrayGetValueAtIndex(array, i)));
    return list;
}

/// `value` may be null.
AccessibilityValue valueOf(CFTypeRef value) {
    if (!value)
        return AccessibilityFailure{};
    if (auto element = handleOf(value))
        return element;
    const CFTypeID type = CFGetTypeID(value);
    if (type == CFArrayGetTypeID())
        return listOf(static_cast<CFArrayRef>(value));
    if (type == CFBooleanGetTypeID())
        return CFBooleanGetValue(static_cast<CFBooleanRef>(value)) != 0;
    if (type == CFStringGetTypeID())
        if (auto text = utf8Text(static_cast<CFStringRef>(value)))
            return *std::move(text);
    return OtherAccessibilityValue{};
}

}  // namespace

AccessibilityElementHandle MacAccessibilityElements::applicationElement(ProcessIdentifier application) {
    if (application <= 0 || !std::in_range<pid_t>(application))
        return nullptr;
    CfReference<AXUIElementRef> element(AXUIElementCreateApplication(static_cast<pid_t>(application)));
    return element ? std::make_unique<Element>(std::move(element)) : nullptr;
}

}  // namespace kinesta
