#pragma once
#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>
#include <sys/types.h>
#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin
#define CFSTR(s) ((CFStringRef)__builtin___CFStringMakeConstantString("" s ""))
typedef CF_ENUM(SInt32, AXError) {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212
};
typedef const struct __AXUIElement* AXUIElementRef;
typedef const struct __AXValue* AXValueRef;
typedef CF_ENUM(UInt32, AXValueType) { kAXValueTypeCGPoint = 1, kAXValueTypeCGSize = 2, kAXValueTypeCGRect = 3 };
extern CFStringRef kAXTrustedCheckOptionPrompt;
#define kAXFocusedWindowAttribute CFSTR("AXFocusedWindow")
#define kAXPositionAttribute CFSTR("AXPosition")
Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);
CFTypeID AXUIElementGetTypeID(void);
AXUIElementRef AXUIElementCreateApplication(pid_t pid);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef e, float seconds);
AXError AXUIElementCopyAttributeValue(AXUIElementRef e, CFStringRef attribute, CFTypeRef _Nullable* _Nonnull value);
AXError AXUIElementSetAttributeValue(AXUIElementRef e, CFStringRef attribute, CFTypeRef value);
AXError AXUIElementPerformAction(AXUIElementRef e, CFStringRef action);
AXValueRef _Nullable AXValueCreate(AXValueType t, const void* p);
Boolean AXValueGetValue(AXValueRef v, AXValueType t, void* p);
#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
