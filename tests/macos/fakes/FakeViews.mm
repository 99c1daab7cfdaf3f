// Views, their layers and constraints, and what the cue's panel has in it.
#include <AppKit/NSPanel.h>

#include <string>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

const NSFontWeight NSFontWeightSemibold = 0.3;

@interface NSLayoutAnchor ()
- (instancetype)initWithView:(NSView*)view name:(const char*)name;
@end
@implementation NSLayoutAnchor {
    std::string _text;
}
- (instancetype)initWithView:(NSView*)view name:(const char*)name {
    if ((self = [super init]))
        _text = kinesta::objc::describe((__bridge void*)view) + "." + name;
    return self;
}
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor {
    return [NSLayoutConstraint new];
}
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor constant:(CGFloat)c {
    return [NSLayoutConstraint new];
}
- (const char*)recordedText {
    return _text.c_str();
}
@end
@implementation NSLayoutXAxisAnchor
@end
@implementation NSLayoutYAxisAnchor
@end
@implementation NSLayoutConstraint
+ (void)activateConstraints:(NSArray*)constraints {
}
@end

@implementation NSResponder
@end

#define ANCHOR(type, side)                                  \
    -(type*)side##Anchor {                                  \
        return [[type alloc] initWithView:self name:#side]; \
    }

@interface NSView ()
@property(nullable, readwrite, unsafe_unretained) NSWindow* window;
@end
@implementation NSView {
    std::vector<NSView*> _subviews;
    __unsafe_unretained NSView* _superview;
}
@synthesize appearance, effectiveAppearance;
- (instancetype)initWithFrame:(NSRect)frame {
    if ((self = [super init]))
        self.frame = frame;
    return self;
}
- (BOOL)wantsLayer {
    return self.layer != nil;
}
- (void)setWantsLayer:(BOOL)wantsLayer {
    self.layer = wantsLayer ? [CALayer new] : nil;
}
- (void)setAccessibilityLabel:(NSString*)label {
}
- (void)addSubview:(NSView*)view {
    _subviews.push_back(view);
    view->_superview = self;
    [view moveToWindow:self.window];
}
- (void)removeFromSuperview {
    if (_superview) {
        std::erase(_superview->_subviews, self);
        _superview = nil;
        [self moveToWindow:nil];
    }
}
- (void)dealloc {
    for (NSView* each : _subviews)
        each->_superview = nil;
}
- (void)viewDidMoveToWindow {
}
- (void)moveToWindow:(NSWindow*)window {
    self.window = window;
    [self viewDidMoveToWindow];
    for (NSView* each : _subviews)
        [each moveToWindow:window];
}
ANCHOR(NSLayoutXAxisAnchor, leading)
ANCHOR(NSLayoutXAxisAnchor, trailing)
ANCHOR(NSLayoutYAxisAnchor, top)
ANCHOR(NSLayoutYAxisAnchor, bottom)
ANCHOR(NSLayoutYAxisAnchor, centerY)
@end

@implementation CALayer
@end
@implementation NSVisualEffectView
@end
@implementation NSFont
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight {
    return [NSFont new];
}
@end
@implementation NSTextField
+ (instancetype)labelWithString:(NSString*)text {
    NSTextField* const label = [self new];
    label.stringValue = text;
    return label;
}
@end
@implementation NSImageView
+ (instancetype)imageViewWithImage:(NSImage*)image {
    NSImageView* const view = [self new];
    view.image = image;
    return view;
}
@end

namespace {

using Completion = void (^)(void);

std::vector<Completion>& animations() {
    static auto& all = *new std::vector<Completion>;
    return all;
}

std::vector<NSScreen*>& screens() {
    static auto& all = *new std::vector<NSScreen*>;
    return all;
}

int mainScreen = -1;

}  // namespace

@implementation NSAnimationContext
+ (void)runAnimationGroup:(void (^)(NSAnimationContext*))changes completionHandler:(Completion)completion {
    changes([NSAnimationContext new]);
    if (completion) {
        animations().push_back(completion);
        kinesta::fakes::registered("animation");
    }
}
@end

@interface NSScreen ()
@property(readwrite) NSRect frame;
@property(readwrite) NSRect visibleFrame;
@end
@implementation NSScreen
+ (NSArray*)screens {
    const void* const first = screens().data();
    return [NSArray arrayWithObjects:static_cast<const id __unsafe_unretained*>(first) count:screens().size()];
}
+ (NSScreen*)mainScreen {
    return mainScreen < 0 ? nil : screens().at(static_cast<std::size_t>(mainScreen));
}
@end

namespace kinesta::fakes {

void moveToWindow(NSView* view, NSWindow* window) {
    @autoreleasepool {
        [view moveToWindow:window];
    }
}

void endAnimations() {
    @autoreleasepool {
        for (const Completion& completion : std::exchange(animations(), {})) {
            unregistered("animation");
            completion();
        }
    }
}

void connectScreens(const std::vector<FakeScreen>& connected, int main) {
    @autoreleasepool {
        screens().clear();
        for (const FakeScreen& each : connected) {
            NSScreen* const screen = [NSScreen new];
            screen.frame = each.frame;
            screen.visibleFrame = each.visibleFrame;
            screens().push_back(screen);
        }
        mainScreen = main;
    }
}

static const OnReset views([] {
    animations().clear();
    connectScreens({}, -1);
});

}  // namespace kinesta::fakes
