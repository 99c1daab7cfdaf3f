#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSMenu.h>
#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>

#pragma clang assume_nonnull begin

typedef CF_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2
};

extern "C" const NSNotificationName NSApplicationDidBecomeActiveNotification;
extern "C" const NSNotificationName NSApplicationDidHideNotification;
extern "C" const NSNotificationName NSApplicationDidUnhideNotification;

@interface NSApplication : NSResponder
@property(class, readonly, strong) NSApplication* sharedApplication;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (NSApplicationActivationPolicy)activationPolicy;
@property(readonly, getter=isActive) BOOL active;
- (void)activateIgnoringOtherApps:(BOOL)ignoringOthers;
@property(copy, readonly) NSArray<NSWindow*>* windows;
@property(nullable, readonly, weak) NSWindow* keyWindow;
@property(nullable, readonly, weak) NSWindow* mainWindow;
@property(nullable, strong) NSMenu* mainMenu;
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart;
- (void)run;
- (void)stop:(nullable id)sender;
@end

@interface NSApplication (NSAppearanceCustomization) <NSAppearanceCustomization>
@end

extern "C" NSApplication* _Null_unspecified NSApp;

#pragma clang assume_nonnull end
