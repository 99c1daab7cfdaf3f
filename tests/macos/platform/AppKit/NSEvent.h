#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef CF_ENUM(NSUInteger, NSEventType) { NSEventTypeOtherMouseDown = 25, NSEventTypeGesture = 29 };
typedef CF_OPTIONS(unsigned long long, NSEventMask) { NSEventMaskOtherMouseDown = 1ULL << 25 };

@interface NSEvent : NSObject
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)monitor;
@property(class, readonly) NSPoint mouseLocation;
@property(readonly) NSEventType type;
@property(readonly) NSInteger buttonNumber;
@end

#pragma clang assume_nonnull end
