#pragma once

#include <objc/objc.h>

typedef struct _NSZone NSZone;
@class Protocol;

#pragma clang assume_nonnull begin

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
- (NSUInteger)hash;
- (Class)class;
- (BOOL)isKindOfClass:(Class)type;
- (BOOL)conformsToProtocol:(Protocol*)protocol;
- (BOOL)respondsToSelector:(SEL)selector;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;  // as on the platform: with it the compiler knows where the variables of a subclass begin
}
+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
+ (BOOL)instancesRespondToSelector:(SEL)selector;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
@end

#pragma clang assume_nonnull end
