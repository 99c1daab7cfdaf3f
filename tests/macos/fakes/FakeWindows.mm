#include <AppKit/NSWindow.h>

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
- (void)orderFrontRegardless {
}
- (void)orderOut:(id)sender {
}
@end
@implementation NSPanel
@end
