#include "platform/macos/events/SystemDefinedCgEvent.h"

#include <AppKit/AppKit.h>

namespace kinesta {

CfReference<CGEventRef> systemDefinedCgEvent(const SystemDefinedEvent& event) {
    // Posting may run outside any event of the application, so nothing else would empty the pool.
    @autoreleasepool {
        // Owns the event that it gives, so it must last until that is retained.
        __attribute__((objc_precise_lifetime)) NSEvent* const made =
            [NSEvent otherEventWithType:NSEventTypeSystemDefined
                               location:NSPoint{0, 0}
                          modifierFlags:0
                              timestamp:event.timestamp
                           windowNumber:0
                                context:nil
                                subtype:event.subtype
                                  data1:event.data1
                                  data2:event.data2];
        return retained(made.CGEvent);
    }
}

}  // namespace kinesta
