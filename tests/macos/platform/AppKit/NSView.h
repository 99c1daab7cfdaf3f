#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(nullable NSString*)text;
@end

@interface NSResponder : NSObject
@end

@interface NSView : NSResponder
@property NSRect frame;
@property(getter=isHidden) BOOL hidden;
@property(nullable, copy) NSString* toolTip;
- (void)setAccessibilityLabel:(nullable NSString*)label;
@end

#pragma clang assume_nonnull end
