#pragma once

#include <AppKit/NSView.h>

#pragma clang assume_nonnull begin

typedef CF_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7
};
typedef NSInteger NSWindowLevel;
static const NSWindowLevel NSStatusWindowLevel = 25;
typedef CF_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorTransient = 1 << 3,
    NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8
};
typedef CF_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };

typedef CF_ENUM(NSUInteger, NSWindowButton) { NSWindowCloseButton = 0 };

extern "C" const NSNotificationName NSWindowWillCloseNotification;
extern "C" const NSNotificationName NSWindowDidBecomeKeyNotification;

@class NSButton;

@interface NSWindow : NSResponder <NSAppearanceCustomization>
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer;
@property(readonly) NSRect frame;
- (void)setFrameOrigin:(NSPoint)origin;
- (void)orderFrontRegardless;
- (void)orderOut:(nullable id)sender;
@property(readonly, getter=isVisible) BOOL visible;
@property(nullable, strong) NSView* contentView;
@property CGFloat alphaValue;
@property(getter=isOpaque) BOOL opaque;
@property(copy) NSColor* backgroundColor;
@property BOOL hasShadow;
@property NSWindowLevel level;
@property BOOL ignoresMouseEvents;
@property BOOL hidesOnDeactivate;
@property NSWindowCollectionBehavior collectionBehavior;
- (instancetype)animator;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property(copy) NSString* title;
@property(readonly) BOOL canBecomeMainWindow;
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
