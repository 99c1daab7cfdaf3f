#pragma once
#include <ApplicationServices/ApplicationServices.h>
#ifdef __cplusplus
extern "C" {
#endif
/* HIToolbox; unannotated on the platform, what may be null is said here */
#pragma clang assume_nonnull begin
typedef struct __TISInputSource* TISInputSourceRef;
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;
TISInputSourceRef _Nullable TISCopyCurrentKeyboardLayoutInputSource(void);
void* _Nullable TISGetInputSourceProperty(TISInputSourceRef s, CFStringRef k);
UInt8 LMGetKbdType(void);
#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
