#include <AppKit/NSApplication.h>

#include "Registrations.h"

NSApplication* NSApp = nil;

@implementation NSApplication {
    NSApplicationActivationPolicy _policy;
}
+ (NSApplication*)sharedApplication {
    static NSApplication* const application = [NSApplication new];
    NSApp = application;
    return application;
}
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
    _policy = policy;
    return YES;
}
- (NSApplicationActivationPolicy)activationPolicy {
    return _policy;
}
- (void)activateIgnoringOtherApps:(BOOL)ignoringOthers {
}
@end

static const kinesta::fakes::OnReset application([] {
    [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyRegular];
});
