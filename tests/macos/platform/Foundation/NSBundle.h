#pragma once

#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

#pragma clang assume_nonnull begin

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithURL:(NSURL*)url;
@property(nullable, readonly, copy) NSURL* privateFrameworksURL;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSString* executablePath;
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
- (BOOL)loadAndReturnError:(NSError* _Nullable* _Nullable)error;
- (nullable Class)classNamed:(NSString*)name;
@end

#pragma clang assume_nonnull end
