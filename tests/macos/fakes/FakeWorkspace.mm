#include <AppKit/NSWorkspace.h>

#include "Fakes.h"
#include "Registrations.h"

const NSNotificationName NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification =
    @"NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification";
const NSNotificationName NSWorkspaceDidWakeNotification = @"NSWorkspaceDidWakeNotification";

@interface NSRunningApplication ()
@property(readwrite) pid_t processIdentifier;
@end
@implementation NSRunningApplication
@end

@implementation NSWorkspaceOpenConfiguration
+ (instancetype)configuration {
    return [self new];
}
@end

@interface NSWorkspace ()
@property(nullable, readwrite, strong) NSRunningApplication* frontmostApplication;
@property(readwrite) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readwrite) BOOL accessibilityDisplayShouldReduceMotion;
@property(readwrite) BOOL accessibilityDisplayShouldReduceTransparency;
@end
@implementation NSWorkspace
@synthesize notificationCenter = _notificationCenter;
- (BOOL)openURL:(NSURL*)url {
    return YES;
}
- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^)(NSRunningApplication*, NSError*))completionHandler {
    completionHandler(nil, nil);
}
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

void kinesta::fakes::bringToFront(int process) {
    @autoreleasepool {
        NSRunningApplication* const application = process ? [NSRunningApplication new] : nil;
        application.processIdentifier = process;
        NSWorkspace.sharedWorkspace.frontmostApplication = application;
    }
}

static const kinesta::fakes::OnReset workspace([] { (void)NSWorkspace.sharedWorkspace; });
