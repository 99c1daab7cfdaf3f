#include "platform/macos/cue/MacActionCuePanel.h"

#include <AppKit/AppKit.h>
#include <QuartzCore/QuartzCore.h>

#include <algorithm>
#include <utility>

#include "platform/macos/cue/CueView.h"

namespace kinesta {
namespace {

constexpr CGFloat kRadius = 13;

constexpr NSWindowCollectionBehavior kBehavior =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorTransient |
    NSWindowCollectionBehaviorIgnoresCycle | NSWindowCollectionBehaviorFullScreenAuxiliary;
static_assert(kBehavior == 0x149);

NSPanel* makePanel() {
    NSPanel* const panel = [[NSPanel alloc] initWithContentRect:CGRect {
        {}, { ActionCuePanel::width, ActionCuePanel::height }
    }
                                                      styleMask:NSWindowStyleMaskNonactivatingPanel
                                                        backing:NSBackingStoreBuffered
                                                          defer:NO];
    panel.opaque = NO;
    panel.backgroundColor = NSColor.clearColor;
    panel.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    panel.hasShadow = NO;
    panel.level = NSStatusWindowLevel;
    panel.ignoresMouseEvents = YES;
    panel.hidesOnDeactivate = NO;
    panel.collectionBehavior = kBehavior;
    panel.releasedWhenClosed = NO;
    return panel;
}

NSVisualEffectView* makeGround() {
    NSVisualEffectView* const ground = [[NSVisualEffectView alloc] initWithFrame:CGRect{}];
    ground.material = NSVisualEffectMaterialHUDWindow;
    ground.blendingMode = NSVisualEffectBlendingModeBehindWindow;
    ground.state = NSVisualEffectStateActive;
    ground.wantsLayer = YES;
    // The layer of the view itself rounds the blur, too (from memory).
    ground.layer.cornerRadius = kRadius;
    ground.layer.masksToBounds = YES;
    return ground;
}

void fill(NSView* parent, NSView* child) {
    child.translatesAutoresizingMaskIntoConstraints = NO;
    [parent addSubview:child];
    [NSLayoutConstraint activateConstraints:@[
        [child.leadingAnchor constraintEqualToAnchor:parent.leadingAnchor],
        [child.trailingAnchor constraintEqualToAnchor:parent.trailingAnchor],
        [child.topAnchor constraintEqualToAnchor:parent.topAnchor],
        [child.bottomAnchor constraintEqualToAnchor:parent.bottomAnchor]
    ]];
}

}  // namespace

struct MacActionCuePanel::Impl {
    NSPanel* panel = makePanel();
    NSVisualEffectView* ground = makeGround();
    CueView cue;

    Impl() {
        NSView* const content = [[NSView alloc] initWithFrame:CGRect{{}, {width, height}}];
        content.wantsLayer = YES;
        content.layer.backgroundColor = NSColor.clearColor.CGColor;
        panel.contentView = content;
        fill(content, ground);
        fill(content, cue.view());
    }
};

struct MacActionCuePanel::Fade {
    double from;
    double to;
    Uptime begin;
    Seconds duration;
    std::function<void()> done;
};

MacActionCuePanel::MacActionCuePanel(const Clock& clock) : m_clock(clock), m_impl(std::make_unique<Impl>()) {}

MacActionCuePanel::~MacActionCuePanel() { orderOut(); }

void MacActionCuePanel::setContent(const ActionCueContent& content) { m_impl->cue.setContent(content); }

void MacActionCuePanel::setBackgroundOpacity(double opacity) { m_impl->ground.alphaValue = opacity; }

void MacActionCuePanel::setOrigin(Point origin) { [m_impl->panel setFrameOrigin:CGPoint{origin.x, origin.y}]; }

bool MacActionCuePanel::isVisible() const { return m_impl->panel.isVisible; }

double MacActionCuePanel::alpha() const {
    // The panel itself already answers with the end of an animation (from memory).
    if (!m_fade || m_fade->duration <= 0)
        return m_impl->panel.alphaValue;
    const double progress = std::clamp((m_clock.uptime() - m_fade->begin) / m_fade->duration, 0.0, 1.0);
    return m_fade->from + (m_fade->to - m_fade->from) * progress;
}

void MacActionCuePanel::setAlpha(double alpha) {
    // An animation under way would go on and win over a plain change: one that takes no time replaces it.
    if (std::exchange(m_fade, nullptr)) {
        NSPanel* const panel = m_impl->panel;
        [NSAnimationContext
            runAnimationGroup:^(NSAnimationContext* context) {
              context.duration = 0;
              panel.animator.alphaValue = alpha;
            }
            completionHandler:nil];
    }
    m_impl->panel.alphaValue = alpha;
}

void MacActionCuePanel::orderFront() { [m_impl->panel orderFrontRegardless]; }

void MacActionCuePanel::orderOut() {
    m_fade.reset();
    [m_impl->panel orderOut:nil];
}

void MacActionCuePanel::animateAlpha(double alpha, Seconds duration, std::function<void()> done) {
    const auto fade =
        std::make_shared<const Fade>(Fade{this->alpha(), alpha, m_clock.uptime(), duration, std::move(done)});
    m_fade = fade;
    const std::weak_ptr<const Fade> weakFade = fade;
    NSPanel* const panel = m_impl->panel;
    [NSAnimationContext
        runAnimationGroup:^(NSAnimationContext* context) {
          context.duration = duration;
          panel.animator.alphaValue = alpha;
        }
        completionHandler:^{
          // Gone if a newer presentation has replaced it.
          if (const auto ended = weakFade.lock())
              ended->done();
        }];
}

}  // namespace kinesta
