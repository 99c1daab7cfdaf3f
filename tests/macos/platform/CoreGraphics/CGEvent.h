#pragma once

#include <CoreGraphics/CGGeometry.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin

typedef struct __CGEvent* CGEventRef;
typedef struct __CGEventSource* CGEventSourceRef;
typedef uint16_t CGKeyCode;

typedef CF_ENUM(int32_t, CGEventSourceStateID) {
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1
};
typedef CF_ENUM(uint32_t, CGEventTapLocation) {
    kCGHIDEventTap = 0,
    kCGSessionEventTap = 1,
    kCGAnnotatedSessionEventTap = 2
};
typedef CF_ENUM(uint32_t, CGEventType) {
    kCGEventLeftMouseDown = 1,
    kCGEventLeftMouseUp = 2,
    kCGEventRightMouseDown = 3,
    kCGEventRightMouseUp = 4,
    kCGEventMouseMoved = 5,
    kCGEventKeyDown = 10,
    kCGEventKeyUp = 11,
    kCGEventFlagsChanged = 12,
    kCGEventScrollWheel = 22,
    kCGEventOtherMouseDown = 25,
    kCGEventOtherMouseUp = 26,
    kCGEventOtherMouseDragged = 27
};
typedef CF_ENUM(uint32_t, CGMouseButton) { kCGMouseButtonLeft = 0, kCGMouseButtonRight = 1, kCGMouseButtonCenter = 2 };
typedef CF_ENUM(uint32_t, CGEventField) {
    kCGMouseEventClickState = 1,
    kCGMouseEventButtonNumber = 3,
    kCGKeyboardEventKeycode = 9,
    kCGEventSourceUserData = 42
};
typedef CF_OPTIONS(uint64_t, CGEventFlags) {
    kCGEventFlagMaskNonCoalesced = 0x100,
    kCGEventFlagMaskAlphaShift = 0x10000,
    kCGEventFlagMaskShift = 0x20000,
    kCGEventFlagMaskControl = 0x40000,
    kCGEventFlagMaskAlternate = 0x80000,
    kCGEventFlagMaskCommand = 0x100000,
    kCGEventFlagMaskNumericPad = 0x200000,
    kCGEventFlagMaskHelp = 0x400000,
    kCGEventFlagMaskSecondaryFn = 0x800000
};

// Every event and source may be null, in arguments and in results.
CGEventSourceRef _Nullable CGEventSourceCreate(CGEventSourceStateID stateID);
CGEventRef _Nullable CGEventCreate(CGEventSourceRef _Nullable source);
CGEventRef _Nullable CGEventCreateKeyboardEvent(CGEventSourceRef _Nullable source, CGKeyCode virtualKey, bool keyDown);
CGEventRef _Nullable CGEventCreateMouseEvent(CGEventSourceRef _Nullable source, CGEventType type, CGPoint position,
                                             CGMouseButton button);
CGPoint CGEventGetLocation(CGEventRef _Nullable event);
CGEventFlags CGEventGetFlags(CGEventRef _Nullable event);
void CGEventSetFlags(CGEventRef _Nullable event, CGEventFlags flags);
int64_t CGEventGetIntegerValueField(CGEventRef _Nullable event, CGEventField field);
void CGEventSetIntegerValueField(CGEventRef _Nullable event, CGEventField field, int64_t value);
void CGEventPost(CGEventTapLocation tap, CGEventRef _Nullable event);

#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
