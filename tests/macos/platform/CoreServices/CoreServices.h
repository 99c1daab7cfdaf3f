#pragma once

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin

// CarbonCore, which says nothing of null itself: it gives paramErr for a null result.
typedef struct UCKeyboardLayout UCKeyboardLayout;
enum { kUCKeyActionDown = 0, kUCKeyActionUp = 1, kUCKeyActionAutoKey = 2, kUCKeyActionDisplay = 3 };
enum { kUCKeyTranslateNoDeadKeysBit = 0, kUCKeyTranslateNoDeadKeysMask = 1 };
OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 virtualKey, UInt16 keyAction, UInt32 modifierKeyState,
                        UInt32 keyboardType, OptionBits options, UInt32* deadKeyState, UniCharCount maxLength,
                        UniCharCount* actualLength, UniChar buffer[_Nonnull]);

#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
