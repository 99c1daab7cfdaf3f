#include "platform/macos/keyboard/MacKeyboardLayout.h"

#include <Carbon/Carbon.h>

#include <algorithm>
#include <array>

#include "platform/macos/corefoundation/CfText.h"

namespace kinesta {
namespace {

/// What one key types; empty for nothing.
std::string characters(const UCKeyboardLayout& layout, UInt16 keyCode, UInt32 keyboard) {
    std::array<UniChar, 4> units{};
    UniCharCount count = 0;
    UInt32 deadKeys = 0;  // none pending from an earlier key
    if (UCKeyTranslate(&layout, keyCode, kUCKeyActionDown, 0, keyboard, 0, &deadKeys, units.size(), &count,
                       units.data()) != 0)
        return {};
    const auto length = static_cast<CFIndex>(std::min<UniCharCount>(count, units.size()));
    const CfReference<CFStringRef> text(CFStringCreateWithCharacters(kCFAllocatorDefault, units.data(), length));
    return text ? utf8Text(text.get()).value_or("") : "";
}

}  // namespace

std::optional<KeyboardLayoutCharacters> MacKeyboardLayout::charactersWithoutModifiers() {
    const CfReference<TISInputSourceRef> source(TISCopyCurrentKeyboardLayoutInputSource());
    if (!source)
        return std::nullopt;
    // Belongs to the source, which therefore stays until the end.
    const void* const data = TISGetInputSourceProperty(source.get(), kTISPropertyUnicodeKeyLayoutData);
    const UInt8* const bytes = data ? CFDataGetBytePtr(static_cast<CFDataRef>(data)) : nullptr;
    if (!bytes)
        return std::nullopt;
    const auto& layout = *reinterpret_cast<const UCKeyboardLayout*>(bytes);
    const UInt32 keyboard = LMGetKbdType();
    KeyboardLayoutCharacters typed;
    for (std::size_t code = 0; code < typed.size(); ++code)
        typed[code] = characters(layout, static_cast<UInt16>(code), keyboard);
    return typed;
}

}  // namespace kinesta
