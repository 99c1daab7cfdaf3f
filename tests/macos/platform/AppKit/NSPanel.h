#pragma once

#include <AppKit/NSStatusItem.h>
#include <AppKit/NSWindow.h>
#include <QuartzCore/QuartzCore.h>

#pragma clang assume_nonnull begin

typedef CF_ENUM(NSInteger, NSVisualEffectMaterial) { NSVisualEffectMaterialHUDWindow = 13 };
typedef CF_ENUM(NSInteger, NSVisualEffectBlendingMode) { NSVisualEffectBlendingModeBehindWindow = 0 };
typedef CF_ENUM(NSInteger, NSVisualEffectState) { NSVisualEffectStateActive = 1 };

@interface NSVisualEffectView : NSView
@property NSVisualEffectMaterial material;
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@end

@interface NSAnimationContext : NSObject
+ (void)runAnimationGroup:(void (^)(NSAnimationContext* context))changes
        completionHandler:(nullable void (^)(void))completionHandler;
@property NSTimeInterval duration;
@end

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, nullable, readonly, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@end

typedef CGFloat NSFontWeight;
extern "C" const NSFontWeight NSFontWeightSemibold;
@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
@end

@interface NSTextField : NSControl
+ (instancetype)labelWithString:(NSString*)text;
@end

@interface NSImageView : NSControl
+ (instancetype)imageViewWithImage:(NSImage*)image;
@property(nullable, strong) NSImage* image;
@end

#pragma clang assume_nonnull end
