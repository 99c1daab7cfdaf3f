#pragma once

#include <AppKit/NSView.h>

#pragma clang assume_nonnull begin

typedef CF_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2
};

@interface NSApplication : NSResponder
@property(class, readonly, strong) NSApplication* sharedApplication;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (NSApplicationActivationPolicy)activationPolicy;
@property(readonly, getter=isActive) BOOL active;
- (void)activateIgnoringOtherApps:(BOOL)ignoringOthers;
@end

@interface NSApplication (NSAppearanceCustomization) <NSAppearanceCustomization>
@end

extern "C" NSApplication* _Null_unspecified NSApp;

#pragma clang assume_nonnull end
