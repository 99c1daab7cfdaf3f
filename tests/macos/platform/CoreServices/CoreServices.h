#pragma once
#include <CoreFoundation/CoreFoundation.h>
#ifdef __cplusplus
extern "C" {
#endif
/* CarbonCore; unannotated on the platform */
typedef struct UCKeyboardLayout UCKeyboardLayout;
enum { kUCKeyActionDown = 0, kUCKeyActionDisplay = 3, kUCKeyTranslateNoDeadKeysMask = 1 };
OSStatus UCKeyTranslate(const UCKeyboardLayout* l, UInt16 code, UInt16 action, UInt32 mods, UInt32 kbd, OptionBits opts,
                        UInt32* dead, UniCharCount max, UniCharCount* len, UniChar buf[]);
#ifdef __cplusplus
}
#endif
