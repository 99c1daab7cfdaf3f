#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/NSObject.h>

#pragma clang assume_nonnull begin

typedef double NSTimeInterval;
typedef unsigned short unichar;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

@class NSArray<__covariant T>, NSDictionary<K, V>, NSString;

@interface NSString : NSObject <NSCopying>
@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String;
+ (nullable instancetype)stringWithUTF8String:(const char*)text;
+ (instancetype)stringWithCharacters:(const unichar*)units length:(NSUInteger)count;
@property(readonly, copy) NSString* lowercaseString;
- (BOOL)isEqualToString:(NSString*)other;
@end

@interface NSObject (Description)
- (NSString*)description;
@end

extern "C" NSString* NSStringFromSelector(SEL selector);

@interface NSNumber : NSObject <NSCopying>
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
+ (NSNumber*)numberWithUnsignedLongLong:(unsigned long long)value;
@property(readonly) const char* objCType;
@property(readonly) long long longLongValue;
@property(readonly) double doubleValue;
@property(readonly) BOOL boolValue;
@property(readonly) NSInteger integerValue;
+ (NSNumber*)numberWithInteger:(NSInteger)value;
@end

#pragma clang assume_nonnull end
