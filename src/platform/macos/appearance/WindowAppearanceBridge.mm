#include "platform/macos/appearance/WindowAppearanceBridge.h"

#include <AppKit/AppKit.h>

/// Sits in the window unseen.
@interface KinestaAppearanceView : NSView
@property(nonatomic, nullable, strong) NSAppearance* wanted;
@end

@implementation KinestaAppearanceView
- (void)setWanted:(NSAppearance*)wanted {
    _wanted = wanted;
    self.window.appearance = wanted;
}
- (void)viewDidMoveToWindow {
    self.window.appearance = self.wanted;
}
@end

namespace kinesta {
namespace {

NSAppearance* asAppKit(std::optional<NamedAppearance> appearance) {
    if (!appearance)
        return nil;
    return [NSAppearance
        appearanceNamed:*appearance == NamedAppearance::darkAqua ? NSAppearanceNameDarkAqua : NSAppearanceNameAqua];
}

}  // namespace

struct WindowAppearanceBridge::Impl {
    KinestaAppearanceView* view = [[KinestaAppearanceView alloc] initWithFrame:CGRect{}];
};

WindowAppearanceBridge::WindowAppearanceBridge(void* view) : m_impl(std::make_unique<Impl>()) {
    NSView* const host = (__bridge NSView*)view;
    [host addSubview:m_impl->view];
}

WindowAppearanceBridge::~WindowAppearanceBridge() { [m_impl->view removeFromSuperview]; }

void WindowAppearanceBridge::setAppearance(std::optional<NamedAppearance> appearance) {
    m_impl->view.wanted = asAppKit(appearance);
}

}  // namespace kinesta
