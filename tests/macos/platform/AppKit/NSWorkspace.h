#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

extern "C" const NSNotificationName NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
extern "C" const NSNotificationName NSWorkspaceDidActivateApplicationNotification;
extern "C" const NSNotificationName NSWorkspaceDidWakeNotification;

@interface NSRunningApplication : NSObject
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(nullable, readonly, strong) NSRunningApplication* frontmostApplication;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@property(readonly) BOOL accessibilityDisplayShouldReduceTransparency;
@end

#pragma clang assume_nonnull end
