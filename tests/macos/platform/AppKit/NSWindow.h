#pragma once

#include <AppKit/NSView.h>

#pragma clang assume_nonnull begin

typedef CF_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7
};
typedef CF_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };

@interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer;
@property(readonly) NSRect frame;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)orderFrontRegardless;
- (void)orderOut:(nullable id)sender;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@end

@interface NSPanel : NSWindow
@end

#pragma clang assume_nonnull end
