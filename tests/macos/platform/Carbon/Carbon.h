#pragma once

#include <ApplicationServices/ApplicationServices.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin

// HIToolbox, which says nothing of null itself: what may be null is said here.
typedef struct __TISInputSource* TISInputSourceRef;
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;
extern const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged;
TISInputSourceRef _Nullable TISCopyCurrentKeyboardLayoutInputSource(void);
void* _Nullable TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef key);
UInt8 LMGetKbdType(void);
enum { kVK_ANSI_A = 0x00, kVK_Function = 0x3F, kVK_LeftArrow = 0x7B };

#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
