#include <AppKit/NSWorkspace.h>

#include "Registrations.h"

const NSNotificationName NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification =
    @"NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification";
const NSNotificationName NSWorkspaceDidActivateApplicationNotification =
    @"NSWorkspaceDidActivateApplicationNotification";
const NSNotificationName NSWorkspaceDidWakeNotification = @"NSWorkspaceDidWakeNotification";

@implementation NSRunningApplication
@end

@interface NSWorkspace ()
@property(readwrite) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readwrite) BOOL accessibilityDisplayShouldReduceMotion;
@property(readwrite) BOOL accessibilityDisplayShouldReduceTransparency;
@end
@implementation NSWorkspace
@synthesize notificationCenter = _notificationCenter;
+ (NSWorkspace*)sharedWorkspace {
    static NSWorkspace* const workspace = [NSWorkspace new];
    return workspace;
}
- (instancetype)init {
    if ((self = [super init]))
        _notificationCenter = [NSNotificationCenter new];
    return self;
}
@end

static const kinesta::fakes::OnReset workspace([] { (void)NSWorkspace.sharedWorkspace; });
