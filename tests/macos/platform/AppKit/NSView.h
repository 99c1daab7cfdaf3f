#pragma once

#include <AppKit/NSAppearance.h>
#include <AppKit/NSImage.h>
#include <AppKit/NSLayoutConstraint.h>
#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@interface NSResponder : NSObject
@end

@class CALayer, NSWindow;

@interface NSView : NSResponder <NSAppearanceCustomization>
- (instancetype)initWithFrame:(NSRect)frame;
@property NSRect frame;
@property(nullable, readonly, unsafe_unretained) NSWindow* window;
@property CGFloat alphaValue;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property BOOL translatesAutoresizingMaskIntoConstraints;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (void)viewDidMoveToWindow;
@property(readonly, strong) NSLayoutXAxisAnchor* leadingAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* trailingAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* topAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* bottomAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* centerYAnchor;
@property(getter=isHidden) BOOL hidden;
@property(nullable, copy) NSString* toolTip;
- (void)setAccessibilityLabel:(nullable NSString*)label;
@end

#pragma clang assume_nonnull end
