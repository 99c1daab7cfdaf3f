// The keyboard layout in use. Its data goes with the input source that it was asked of.
#include <Carbon/Carbon.h>

#include <algorithm>
#include <map>
#include <string>

#include "CFakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

using namespace kinesta;
using namespace kinesta::fakes;

namespace {

std::map<int, std::u16string>& keys() {
    static auto& characters = *new std::map<int, std::u16string>;
    return characters;
}

const void* source = nullptr;
void* layoutData = nullptr;

const OnReset textInput([] {
    keys().clear();
    source = nullptr;
    if (!layoutData)
        layoutData = objc::makeCObject("NSData");
});

}  // namespace

namespace kinesta::fakes {

void setKeyboardLayout(std::map<int, std::u16string> characters) { keys() = std::move(characters); }

}  // namespace kinesta::fakes

extern "C" {

const CFStringRef kTISPropertyUnicodeKeyLayoutData = CFSTR("TISPropertyUnicodeKeyLayoutData");

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource() {
    RECORD_CALL("TISCopyCurrentKeyboardLayoutInputSource");
    if (isToFail("TISCopyCurrentKeyboardLayoutInputSource"))
        return nullptr;
    void* const made = objc::makeCObject("TISInputSource");
    source = made;
    return static_cast<TISInputSourceRef>(made);
}

void* TISGetInputSourceProperty(TISInputSourceRef asked, CFStringRef key) {
    RECORD_CALL("TISGetInputSourceProperty " + objc::kindOf(asked) + " " + objc::describe(key));
    return isToFail("TISGetInputSourceProperty") ? nullptr : layoutData;
}

const UInt8* CFDataGetBytePtr(CFDataRef data) {
    objc::kindOf(data);
    objc::kindOf(source);
    const void* const bytes = &keys();
    return isToFail("CFDataGetBytePtr") ? nullptr : static_cast<const UInt8*>(bytes);
}

UInt8 LMGetKbdType() { return 91; }

OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 key, UInt16 action, UInt32 modifiers, UInt32 keyboard,
                        OptionBits options, UInt32* deadKeys, UniCharCount room, UniCharCount* count, UniChar* buffer) {
    objc::kindOf(source);
    std::string line = "UCKeyTranslate";
    for (const unsigned long value :
         {0UL + key, 0UL + action, 0UL + modifiers, 0UL + keyboard, 0UL + options, 0UL + *deadKeys, room})
        line += " " + std::to_string(value);
    RECORD_CALL(line);
    const auto& characters = *reinterpret_cast<const std::map<int, std::u16string>*>(layout);
    const auto typed = characters.find(key);
    if (isToFail(line) || typed == characters.end())
        return -50;
    *deadKeys = typed->second.empty() ? 7 : 0;
    *count = typed->second.size();
    if (*count > room)
        return -25340;
    std::copy(typed->second.begin(), typed->second.end(), buffer);
    return 0;
}

}  // extern "C"
