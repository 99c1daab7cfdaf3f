#pragma once

#include <AppKit/NSView.h>

#pragma clang assume_nonnull begin

typedef CF_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7
};
typedef CF_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };

typedef CF_ENUM(NSUInteger, NSWindowButton) { NSWindowCloseButton = 0 };

extern "C" const NSNotificationName NSWindowWillCloseNotification;
extern "C" const NSNotificationName NSWindowDidBecomeKeyNotification;

@class NSButton;

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
@property(copy) NSString* title;
@property(readonly) BOOL canBecomeMainWindow;
@property(readonly, getter=isVisible) BOOL visible;
@property(readonly, getter=isMiniaturized) BOOL miniaturized;
@property(readonly, getter=isKeyWindow) BOOL keyWindow;
@property(nullable, readonly, strong) NSWindow* attachedSheet;
- (nullable NSButton*)standardWindowButton:(NSWindowButton)button;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)performClose:(nullable id)sender;
@end

@interface NSPanel : NSWindow
@end

#pragma clang assume_nonnull end
