#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef CF_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeKeyDown = 10,
    NSEventTypeKeyUp = 11,
    NSEventTypeFlagsChanged = 12,
    NSEventTypeSystemDefined = 14,
    NSEventTypeApplicationDefined = 15,
    NSEventTypePressure = 34
};
typedef CF_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseDown = 1ULL << NSEventTypeLeftMouseDown,
    NSEventMaskLeftMouseUp = 1ULL << NSEventTypeLeftMouseUp,
    NSEventMaskRightMouseDown = 1ULL << NSEventTypeRightMouseDown,
    NSEventMaskRightMouseUp = 1ULL << NSEventTypeRightMouseUp,
    NSEventMaskPressure = 1ULL << NSEventTypePressure
};
typedef CF_OPTIONS(NSUInteger, NSEventModifierFlags) {
    NSEventModifierFlagCapsLock = 1 << 16,
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
    NSEventModifierFlagNumericPad = 1 << 21,
    NSEventModifierFlagFunction = 1 << 23
};

@class NSGraphicsContext;

@interface NSEvent : NSObject
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent* event))block;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)monitor;
@property(nullable, readonly) CGEventRef CGEvent;
@property(class, readonly) NSPoint mouseLocation;
@property(readonly) NSEventType type;
@property(readonly) NSTimeInterval timestamp;
@property(readonly) NSEventModifierFlags modifierFlags;
@property(readonly) NSInteger stage;
@end

@interface NSEvent (Making)
+ (nullable NSEvent*)otherEventWithType:(NSEventType)type
                               location:(NSPoint)location
                          modifierFlags:(NSEventModifierFlags)flags
                              timestamp:(NSTimeInterval)time
                           windowNumber:(NSInteger)windowNumber
                                context:(nullable NSGraphicsContext*)context
                                subtype:(short)subtype
                                  data1:(NSInteger)data1
                                  data2:(NSInteger)data2;
@end

#pragma clang assume_nonnull end
