#pragma once

#include <Foundation/NSValues.h>

#pragma clang assume_nonnull begin

@interface NSURL : NSObject <NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)text;
+ (NSURL*)fileURLWithPath:(NSString*)path;
@property(nullable, readonly, copy) NSString* scheme;
@property(nullable, readonly, copy) NSURL* URLByStandardizingPath;
- (nullable NSURL*)URLByAppendingPathComponent:(NSString*)component;
@end

@interface NSString (NSPathUtilities)
@property(readonly, copy) NSString* stringByExpandingTildeInPath;
@end

@interface NSFileManager : NSObject
@property(class, readonly, strong) NSFileManager* defaultManager;
- (NSString*)displayNameAtPath:(NSString*)path;
@end

#pragma clang assume_nonnull end
