#pragma once

#include <Foundation/NSValues.h>

#pragma clang assume_nonnull begin

@interface NSError : NSObject
@property(readonly) NSInteger code;
@property(readonly, copy) NSString* localizedDescription;
@end

#pragma clang assume_nonnull end
