#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin

typedef const struct __AXUIElement* AXUIElementRef;
typedef CF_ENUM(SInt32, AXError) {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorNotImplemented = -25208,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212
};

extern CFStringRef kAXTrustedCheckOptionPrompt;
Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);

CFTypeID AXUIElementGetTypeID(void);
AXUIElementRef AXUIElementCreateApplication(pid_t pid);
AXUIElementRef AXUIElementCreateSystemWide(void);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef _Nullable* _Nonnull value);
AXError AXUIElementSetAttributeValue(AXUIElementRef element, CFStringRef attribute, CFTypeRef value);
AXError AXUIElementPerformAction(AXUIElementRef element, CFStringRef action);
AXError AXUIElementGetPid(AXUIElementRef element, pid_t* pid);

typedef const struct __AXValue* AXValueRef;
typedef CF_ENUM(UInt32, AXValueType) {
    kAXValueTypeIllegal = 0,
    kAXValueTypeCGPoint = 1,
    kAXValueTypeCGSize = 2,
    kAXValueTypeCGRect = 3,
    kAXValueTypeCFRange = 4,
    kAXValueTypeAXError = 5
};
CFTypeID AXValueGetTypeID(void);
AXValueRef _Nullable AXValueCreate(AXValueType type, const void* value);
Boolean AXValueGetValue(AXValueRef value, AXValueType type, void* result);

#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
