#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSGraphicsContext;

typedef CF_ENUM(NSUInteger, NSEventType) {
    NSEventTypeSystemDefined = 14,
    NSEventTypeOtherMouseDown = 25,
    NSEventTypeGesture = 29
};
typedef NSUInteger NSEventModifierFlags;
typedef CF_OPTIONS(unsigned long long, NSEventMask) { NSEventMaskOtherMouseDown = 1ULL << 25 };

@interface NSEvent : NSObject
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)monitor;
@property(nullable, readonly) CGEventRef CGEvent;
@property(class, readonly) NSPoint mouseLocation;
@property(readonly) NSEventType type;
@property(readonly) NSInteger buttonNumber;
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
