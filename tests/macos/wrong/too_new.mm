// 'comeForward' is only available on macOS 14.0 or newer
#include <AppKit/AppKit.h>
#include <os/availability.h>

@interface NSApplication (Newer)
- (void)comeForward API_AVAILABLE(macos(14.0));
@end

void comeToTheFront() { [NSApplication.sharedApplication comeForward]; }
