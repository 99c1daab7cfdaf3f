// Synthesized events. Each call is recorded as the platform would see it.
#include <AppKit/NSEvent.h>

#include "CFakes.h"
#include "TestRuntime.h"
#include "support/Text.h"

using namespace kinesta::objc;
using kinesta::numberText;
using kinesta::fakes::isToFail;

namespace {

/// "CGEvent#1 = call"; null if the call is to fail.
template <typename Reference>
std::string make(Reference& result, const char* kind, const std::string& call) {
    result = isToFail(call) ? nullptr : static_cast<Reference>(makeCObject(kind));
    return describe(result) + " = " + call;
}

/// Stops the test if the event is gone.
std::string living(const void* event) {
    if (event)
        kindOf(event);
    return describe(event);
}

}  // namespace

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
    CGEventSourceRef source;
    const std::string line = make(source, "CGEventSource", "CGEventSourceCreate " + std::to_string(state));
    RECORD_CALL(line);
    return source;
}

CGEventRef CGEventCreate(CGEventSourceRef source) {
    CGEventRef event;
    const std::string line = make(event, "CGEvent", "CGEventCreate " + living(source));
    RECORD_CALL(line);
    return event;
}

CGEventRef CGEventCreateKeyboardEvent(CGEventSourceRef source, CGKeyCode key, bool isDown) {
    CGEventRef event;
    const std::string line =
        make(event, "CGEvent",
             "CGEventCreateKeyboardEvent " + living(source) + " " + std::to_string(key) + (isDown ? " down" : " up"));
    RECORD_CALL(line);
    return event;
}

CGEventRef CGEventCreateMouseEvent(CGEventSourceRef source, CGEventType type, CGPoint at, CGMouseButton button) {
    CGEventRef event;
    const std::string line = make(event, "CGEvent",
                                  "CGEventCreateMouseEvent " + living(source) + " " + std::to_string(type) + " at " +
                                      numberText(at.x) + " " + numberText(at.y) + " button " + std::to_string(button));
    RECORD_CALL(line);
    return event;
}

CGPoint CGEventGetLocation(CGEventRef event) {
    RECORD_CALL("CGEventGetLocation " + living(event));
    return {640, 400.5};
}

void CGEventSetFlags(CGEventRef event, CGEventFlags flags) {
    char text[32];
    std::snprintf(text, sizeof text, " 0x%lX", static_cast<unsigned long>(flags));
    RECORD_CALL("CGEventSetFlags " + living(event) + text);
}

void CGEventSetIntegerValueField(CGEventRef event, CGEventField field, int64_t value) {
    RECORD_CALL("CGEventSetIntegerValueField " + living(event) + " " + std::to_string(field) + " " +
                std::to_string(value));
}

void CGEventPost(CGEventTapLocation tap, CGEventRef event) {
    RECORD_CALL("CGEventPost " + std::to_string(tap) + " " + living(event));
}

}  // extern "C"
