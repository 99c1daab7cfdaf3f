#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSMenu.h>
#include <AppKit/NSView.h>

#pragma clang assume_nonnull begin

static const CGFloat NSVariableStatusItemLength = -1.0;  // a constant of the header, no exported symbol

@class NSFont;
typedef CF_ENUM(NSUInteger, NSLineBreakMode) { NSLineBreakByTruncatingTail = 4 };
typedef CF_ENUM(NSUInteger, NSCellImagePosition) { NSNoImage = 0, NSImageOnly = 1 };

@interface NSControl : NSView
@property(copy) NSString* stringValue;
@property(nullable, strong) NSFont* font;
@property NSLineBreakMode lineBreakMode;
@property BOOL usesSingleLineMode;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(getter=isEnabled) BOOL enabled;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;
@end

@interface NSButton : NSControl
@property(copy) NSString* title;
@property(nullable, strong) NSImage* image;
@property NSCellImagePosition imagePosition;
@end

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property(nullable, readonly, strong) NSStatusBarButton* button;
@property(nullable, strong) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

#pragma clang assume_nonnull end
