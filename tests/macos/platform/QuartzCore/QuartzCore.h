#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property BOOL masksToBounds;
@property(nullable) CGColorRef backgroundColor;
@end

#pragma clang assume_nonnull end
