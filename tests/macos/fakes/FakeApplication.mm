#include <AppKit/NSApplication.h>

#include <cstdlib>

#include "Fakes.h"
#include "Registrations.h"

NSApplication* NSApp = nil;

const NSNotificationName NSApplicationDidBecomeActiveNotification = @"NSApplicationDidBecomeActiveNotification";
const NSNotificationName NSApplicationDidHideNotification = @"NSApplicationDidHideNotification";
const NSNotificationName NSApplicationDidUnhideNotification = @"NSApplicationDidUnhideNotification";

@interface NSApplication ()
@property(readwrite, copy) NSArray* windows;
@property(readwrite, weak) NSWindow* keyWindow;
@property(readwrite, weak) NSWindow* mainWindow;
@property(readwrite, strong) NSEvent* currentEvent;
@end

static NSApplication* theApplication() {
    static NSApplication* const application = [NSApplication new];
    return application;
}

@implementation NSApplication {
    NSApplicationActivationPolicy _policy;
    bool _isStopped;
    bool _hasEvent;
}
+ (NSApplication*)sharedApplication {
    NSApp = theApplication();
    return NSApp;
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
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender {
    if (!action)
        std::abort();
    return target != nil;
}
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart {
    _hasEvent = true;
}
- (void)stop:(id)sender {
    _isStopped = true;
}
- (void)run {
    _isStopped = _hasEvent = false;
    kinesta::fakes::turnRunLoop([self] { return _isStopped && _hasEvent; });
}
@end

namespace kinesta::fakes {

void setWindows(NSArray<NSWindow*>* windows, NSWindow* key, NSWindow* main) {
    theApplication().windows = windows;
    theApplication().keyWindow = key;
    theApplication().mainWindow = main;
}

void setCurrentEvent(NSEvent* event) { theApplication().currentEvent = event; }

static const OnReset application([] {
    [theApplication() setActivationPolicy:NSApplicationActivationPolicyRegular];
    theApplication().mainMenu = nil;
    setCurrentEvent(nil);
    setWindows(@[], nil, nil);
    NSApp = nil;  // until someone asks for it
});

}  // namespace kinesta::fakes
