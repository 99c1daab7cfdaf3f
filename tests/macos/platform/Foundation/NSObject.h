#pragma once

#include <objc/NSObject.h>

#pragma clang assume_nonnull begin

typedef struct _NSZone NSZone;

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

#pragma clang assume_nonnull end
