#pragma once

#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

#pragma clang assume_nonnull begin

@interface NSTask : NSObject
@property(nullable, copy) NSURL* executableURL;
@property(nullable, copy) NSArray<NSString*>* arguments;
- (BOOL)launchAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly) NSTimeInterval systemUptime;
@property(readonly) int processIdentifier;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion;
@end

#pragma clang assume_nonnull end
