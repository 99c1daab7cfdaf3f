// Synthesized events. Each call is recorded as the platform would see it.
#include <AppKit/NSEvent.h>

#include "CFakes.h"
#include "TestRuntime.h"
#include "support/Text.h"

using namespace kinesta::objc;
using kinesta::numberText;
using kinesta::fakes::isToFail;

/// Gives a new object, or null if the call is to fail, and records "CGEvent#1 = call".
#define MAKE(type, kind, text)                                                         \
    const std::string call = text;                                                     \
    const type made = isToFail(call) ? nullptr : static_cast<type>(makeCObject(kind)); \
    RECORD_CALL(describe(made) + " = " + call);                                        \
    return made

/// Stops the test if the object is gone.
static std::string living(const void* object) {
    if (object)
        kindOf(object);
    return describe(object);
}

/// An event around a CGEvent, which goes with it.
@interface FakeSystemDefinedEvent : NSEvent
@end
@implementation FakeSystemDefinedEvent {
    CGEventRef _made;
}
- (CGEventRef)CGEvent {
    if (!_made && !isToFail("NSEvent CGEvent"))
        _made = static_cast<CGEventRef>(makeCObject("CGEvent"));
    return _made;
}
- (void)dealloc {
    if (_made)
        CFRelease(_made);
}
@end

@implementation NSEvent (Making)
+ (NSEvent*)otherEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSEventModifierFlags)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)windowNumber
                       context:(NSGraphicsContext*)context
                       subtype:(short)subtype
                         data1:(NSInteger)data1
                         data2:(NSInteger)data2 {
    return isToFail("NSEvent otherEvent") ? nil : [FakeSystemDefinedEvent new];
}
@end

extern "C" {

CGEventSourceRef CGEventSourceCreate(CGEventSourceStateID state) {
    MAKE(CGEventSourceRef, "CGEventSource", "CGEventSourceCreate " + std::to_string(state));
}
CGEventRef CGEventCreate(CGEventSourceRef source) { MAKE(CGEventRef, "CGEvent", "CGEventCreate " + living(source)); }
CGEventRef CGEventCreateKeyboardEvent(CGEventSourceRef source, CGKeyCode key, bool isDown) {
    MAKE(CGEventRef, "CGEvent",
         "CGEventCreateKeyboardEvent " + living(source) + " " + std::to_string(key) + (isDown ? " down" : " up"));
}
CGEventRef CGEventCreateMouseEvent(CGEventSourceRef source, CGEventType type, CGPoint at, CGMouseButton button) {
    MAKE(CGEventRef, "CGEvent",
         "CGEventCreateMouseEvent " + living(source) + " " + std::to_string(type) + " at " + numberText(at.x) + " " +
             numberText(at.y) + " button " + std::to_string(button));
}
CGPoint CGEventGetLocation(CGEventRef event) {
    RECORD_CALL("CGEventGetLocation " + living(event));
    return {640, 400.5};
}
void CGEventSetFlags(CGEventRef event, CGEventFlags flags) {
    RECORD_CALL("CGEventSetFlags " + living(event) + " " + std::to_string(flags));
}
void CGEventSetIntegerValueField(CGEventRef event, CGEventField field, int64_t value) {
    RECORD_CALL("CGEventSetIntegerValueField " + living(event) + " " + std::to_string(field) + " " +
                std::to_string(value));
}
void CGEventPost(CGEventTapLocation tap, CGEventRef event) {
    RECORD_CALL("CGEventPost " + std::to_string(tap) + " " + living(event));
}

}  // extern "C"
