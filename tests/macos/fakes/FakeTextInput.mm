// The keyboard layout in use. Its data goes with the input source that it was asked of.
#include <Carbon/Carbon.h>

#include <algorithm>
#include <map>
#include <string>

#include "CFakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

using namespace kinesta::objc;
using namespace kinesta::fakes;

using Characters = std::map<int, std::u16string>;

static Characters* const keys = new Characters;
static void* const layoutData = makeCObject("NSData");
static void* source = nullptr;

static const OnReset textInput([] { keys->clear(); });

void kinesta::fakes::setKeyboardLayout(std::map<int, std::u16string> characters) { *keys = std::move(characters); }

extern "C" {

const CFStringRef kTISPropertyUnicodeKeyLayoutData = CFSTR("TISPropertyUnicodeKeyLayoutData");

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource() {
    RECORD_CALL("TISCopyCurrentKeyboardLayoutInputSource");
    source = isToFail("TISCopyCurrentKeyboardLayoutInputSource") ? nullptr : makeCObject("TISInputSource");
    return static_cast<TISInputSourceRef>(source);
}

void* TISGetInputSourceProperty(TISInputSourceRef asked, CFStringRef key) {
    RECORD_CALL("TISGetInputSourceProperty " + kindOf(asked) + " " + describe(key));
    return isToFail("TISGetInputSourceProperty") ? nullptr : layoutData;
}

const UInt8* CFDataGetBytePtr(CFDataRef data) {
    kindOf(data);
    const void* const bytes = keys;
    return isToFail("CFDataGetBytePtr") ? nullptr : static_cast<const UInt8*>(bytes);
}

UInt8 LMGetKbdType() { return 91; }

OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 key, UInt16 action, UInt32 modifiers, UInt32 keyboard,
                        OptionBits options, UInt32* deadKeys, UniCharCount room, UniCharCount* count, UniChar* buffer) {
    kindOf(source);  // the layout is gone with it
    std::string line = "UCKeyTranslate";
    for (const unsigned long value :
         {0UL + key, 0UL + action, 0UL + modifiers, 0UL + keyboard, 0UL + options, 0UL + *deadKeys, room})
        line += " " + std::to_string(value);
    RECORD_CALL(line);
    const auto typed = reinterpret_cast<const Characters*>(layout)->find(key);
    if (typed == keys->end())
        return -50;
    *deadKeys = typed->second.empty() ? 7 : 0;
    *count = typed->second.size();
    if (*count > room)
        return -25340;
    std::copy(typed->second.begin(), typed->second.end(), buffer);
    return isToFail(line) ? -50 : 0;
}

}  // extern "C"
