#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

@class NSError;

@interface NSData : NSObject <NSCopying>
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@property(readonly) const void* bytes __attribute__((objc_returns_inner_pointer));
@property(readonly) NSUInteger length;
@end

typedef CF_OPTIONS(NSUInteger, NSJSONWritingOptions) { NSJSONWritingPrettyPrinted = 1 };

@interface NSJSONSerialization : NSObject
+ (BOOL)isValidJSONObject:(id)object;
+ (nullable NSData*)dataWithJSONObject:(id)object
                               options:(NSJSONWritingOptions)options
                                 error:(NSError* _Nullable* _Nullable)error;
@end

@interface NSUUID : NSObject
+ (instancetype)UUID;
@property(readonly, copy) NSString* UUIDString;
@end

#pragma clang assume_nonnull end
