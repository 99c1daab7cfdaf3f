#include <AppKit/NSStatusItem.h>
#include <AppKit/NSWindow.h>

#include "Fakes.h"

const NSNotificationName NSWindowWillCloseNotification = @"NSWindowWillCloseNotification";
const NSNotificationName NSWindowDidBecomeKeyNotification = @"NSWindowDidBecomeKeyNotification";

@interface NSWindow ()
@property(readwrite) NSRect frame;
@end
@implementation NSWindow
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
}
- (void)orderOut:(id)sender {
}
- (void)makeKeyAndOrderFront:(id)sender {
}
- (void)performClose:(id)sender {
}
@end
@implementation NSPanel
@end
