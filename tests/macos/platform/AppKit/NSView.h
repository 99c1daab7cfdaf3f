#pragma once

#include <AppKit/NSImage.h>
#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface NSResponder : NSObject
@end

@interface NSView : NSResponder
@property NSRect frame;
@property(getter=isHidden) BOOL hidden;
@end

#pragma clang assume_nonnull end
