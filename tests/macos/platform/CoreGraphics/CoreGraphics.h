#pragma once
#include <CoreFoundation/CoreFoundation.h>
#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin
typedef double CGFloat;
typedef struct CGPoint {
    CGFloat x, y;
} CGPoint;
typedef struct CGSize {
    CGFloat width, height;
} CGSize;
typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;
typedef struct __CGEvent* CGEventRef;
typedef struct __CGEventSource* CGEventSourceRef;
typedef uint16_t CGKeyCode;
typedef CF_ENUM(int32_t, CGEventSourceStateID) {
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1
};
typedef CF_ENUM(uint32_t, CGEventTapLocation) { kCGHIDEventTap = 0, kCGSessionEventTap, kCGAnnotatedSessionEventTap };
typedef CF_OPTIONS(uint64_t, CGEventFlags) {
    kCGEventFlagMaskShift = 0x20000,
    kCGEventFlagMaskControl = 0x40000,
    kCGEventFlagMaskAlternate = 0x80000,
    kCGEventFlagMaskCommand = 0x100000,
    kCGEventFlagMaskNumericPad = 0x200000,
    kCGEventFlagMaskSecondaryFn = 0x800000
};
typedef CF_ENUM(uint32_t, CGEventType) {
    kCGEventMouseMoved = 5,
    kCGEventOtherMouseDown = 25,
    kCGEventOtherMouseUp = 26
};
typedef CF_ENUM(uint32_t, CGMouseButton) { kCGMouseButtonLeft, kCGMouseButtonRight, kCGMouseButtonCenter };
typedef CF_ENUM(uint32_t, CGEventField) { kCGMouseEventClickState = 1 };
/* every event and source may be null, in arguments and in results */
CGEventSourceRef _Nullable CGEventSourceCreate(CGEventSourceStateID stateID);
CGEventRef _Nullable CGEventCreate(CGEventSourceRef _Nullable source);
CGEventRef _Nullable CGEventCreateKeyboardEvent(CGEventSourceRef _Nullable source, CGKeyCode virtualKey, bool keyDown);
CGEventRef _Nullable CGEventCreateMouseEvent(CGEventSourceRef _Nullable source, CGEventType t, CGPoint p,
                                             CGMouseButton b);
void CGEventSetIntegerValueField(CGEventRef _Nullable event, CGEventField field, int64_t value);
void CGEventSetFlags(CGEventRef _Nullable event, CGEventFlags flags);
void CGEventPost(CGEventTapLocation tap, CGEventRef _Nullable event);
CGPoint CGEventGetLocation(CGEventRef _Nullable event);
#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
