#include <AppKit/NSStatusItem.h>
#include <AppKit/NSWindow.h>

#include "Fakes.h"

const NSNotificationName NSWindowWillCloseNotification = @"NSWindowWillCloseNotification";
const NSNotificationName NSWindowDidBecomeKeyNotification = @"NSWindowDidBecomeKeyNotification";

@interface NSWindow ()
@property(readwrite) NSRect frame;
@end

/// Changes of it take time: the window itself already has the new value.
@interface FakeAnimator : NSPanel
- (instancetype)initWithWindow:(NSWindow*)window;
@end
@implementation FakeAnimator {
    NSWindow* _window;
}
- (instancetype)initWithWindow:(NSWindow*)window {
    if ((self = [super init]))
        _window = window;
    return self;
}
- (void)setAlphaValue:(CGFloat)alpha {
    _window.alphaValue = alpha;
}
@end

@implementation NSWindow
@synthesize appearance, effectiveAppearance;
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer {
    if ((self = [super init]))
        self.frame = rect;
    return self;
}
- (void)setFrameOrigin:(NSPoint)origin {
    self.frame = NSRect{origin, self.frame.size};
}
- (NSButton*)standardWindowButton:(NSWindowButton)button {
    return button == NSWindowCloseButton ? self.closeButton : nil;
}
- (void)orderFrontRegardless {
    self.visible = YES;
}
- (void)orderOut:(id)sender {
    self.visible = NO;
}
- (instancetype)animator {
    return static_cast<NSWindow*>([[FakeAnimator alloc] initWithWindow:self]);
}
- (void)makeKeyAndOrderFront:(id)sender {
}
- (void)performClose:(id)sender {
}
@end
@implementation NSPanel
@end
