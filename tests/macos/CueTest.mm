#include <algorithm>
#include <optional>

#include "MacTest.h"
#include "feedback/ActionCuePlacement.h"
#include "platform/macos/cue/MacActionCuePanel.h"
#include "platform/macos/cue/MacScreens.h"

namespace kinesta {
namespace {

class CuePanelOnTheMac : public MacTest {
  protected:
    struct SetClock final : Clock {
        Uptime now = 100;
        Uptime uptime() const override { return now; }
        Seconds wallClock() const override { return now; }
    };

    void dismiss() { panel.reset(); }

    SetClock clock;
    std::optional<MacActionCuePanel> panel;
    std::vector<std::string> ended;

    void fade(double alpha, Seconds duration, const std::string& name) {
        panel->animateAlpha(alpha, duration, [this, name] { ended.push_back(name); });
    }
};

TEST_F(CuePanelOnTheMac, IsAPanelThatNeverComesInTheWay) {
    @autoreleasepool {
        panel.emplace(clock);
        const Calls calls = objc::takeCalls();
        const Calls first(calls.begin(), calls.begin() + 11);
        EXPECT_EQ(first, (Calls{"NSPanel#1 initWithContentRect:{0 0 220 44} styleMask:128 backing:2 defer:NO",
                                "NSPanel#1 setOpaque:NO", "NSPanel#1 setBackgroundColor:clearColor",
                                "NSAppearance appearanceNamed:\"NSAppearanceNameDarkAqua\"",
                                "NSPanel#1 setAppearance:NSAppearanceNameDarkAqua", "NSPanel#1 setHasShadow:NO",
                                "NSPanel#1 setLevel:25", "NSPanel#1 setIgnoresMouseEvents:YES",
                                "NSPanel#1 setHidesOnDeactivate:NO", "NSPanel#1 setCollectionBehavior:329",
                                "NSPanel#1 setReleasedWhenClosed:NO"}));
        const auto count = [&](const std::string& line) { return std::ranges::count(calls, line); };
        for (const char* line :
             {"NSVisualEffectView#1 setMaterial:13", "NSVisualEffectView#1 setBlendingMode:0",
              "NSVisualEffectView#1 setState:1", "CALayer#1 setCornerRadius:13", "CALayer#1 setMasksToBounds:YES",
              "NSView#2 setWantsLayer:YES", "CALayer#2 setBackgroundColor:pointer", "NSPanel#1 setContentView:NSView#2",
              "NSView#2 addSubview:NSVisualEffectView#1",
              "NSVisualEffectView#1.top constraintEqualToAnchor:NSView#2.top",
              "NSVisualEffectView#1 setTranslatesAutoresizingMaskIntoConstraints:NO",
              "NSVisualEffectView#1.trailing constraintEqualToAnchor:NSView#2.trailing",
              "NSVisualEffectView#1.bottom constraintEqualToAnchor:NSView#2.bottom",
              "NSView#1.leading constraintEqualToAnchor:NSView#2.leading", "NSTextField#1 setLineBreakMode:4",
              "NSTextField#1 setUsesSingleLineMode:YES",
              "NSTextField#1 setTranslatesAutoresizingMaskIntoConstraints:NO",
              "NSTextField#1.trailing constraintEqualToAnchor:NSView#1.trailing constant:-16"})
            EXPECT_EQ(count(line), 1) << line;
        EXPECT_EQ(count("NSLayoutConstraint activateConstraints:[object, object, object, object]"), 2);

        panel->setContent({"Two\nlines", ActionKind::middleClick});
        panel->setBackgroundOpacity(0.62);
        panel->setOrigin({10, 20});
        panel->orderFront();
        EXPECT_TRUE(panel->isVisible());
        panel->orderOut();
        EXPECT_FALSE(panel->isVisible());
        dismiss();
        EXPECT_EQ(objc::takeCalls(),
                  (Calls{"NSImage imageWithSize:{20 20} flipped:YES drawingHandler:block",
                         "NSImageView#1 setImage:NSImage#2", "NSTextField#1 setStringValue:\"Two\nlines\"",
                         "NSVisualEffectView#1 setAlphaValue:0.62", "NSPanel#1 setFrameOrigin:{10 20}",
                         "NSPanel#1 orderFrontRegardless", "NSPanel#1 orderOut:nil", "NSPanel#1 orderOut:nil"}));
    }
}

TEST_F(CuePanelOnTheMac, EndsOnlyTheAnimationThatNoneHasReplaced) {
    @autoreleasepool {
        panel.emplace(clock);
        panel->setAlpha(0);
        (void)objc::takeCalls();
        fade(1, 0.16, "in");
        EXPECT_EQ(objc::takeCalls(),
                  (Calls{"NSAnimationContext runAnimationGroup:block completionHandler:block",
                         "NSAnimationContext#1 setDuration:0.16", "FakeAnimator#1 setAlphaValue:1"}));
        clock.now += 0.04;
        EXPECT_NEAR(panel->alpha(), 0.25, 1e-9);
        fade(0, 0.2, "out");
        EXPECT_NEAR(panel->alpha(), 0.25, 1e-9);
        clock.now += 0.1;
        EXPECT_NEAR(panel->alpha(), 0.125, 1e-9);
        clock.now += 1;
        EXPECT_EQ(panel->alpha(), 0);
        fakes::endAnimations();
        EXPECT_EQ(ended, Calls{"out"});

        fade(1, 0.16, "again");
        (void)objc::takeCalls();
        panel->setAlpha(0.5);
        EXPECT_EQ(panel->alpha(), 0.5);
        EXPECT_EQ(objc::takeCalls(), (Calls{"NSAnimationContext runAnimationGroup:block completionHandler:nil",
                                            "NSAnimationContext#4 setDuration:0", "FakeAnimator#4 setAlphaValue:0.5",
                                            "NSPanel#1 setAlphaValue:0.5"}));
        fade(0, 0.2, "hidden");
        panel->orderOut();
        fakes::endAnimations();
        fade(0, 0.2, "gone");
        dismiss();
        fakes::endAnimations();
        EXPECT_EQ(ended, Calls{"out"});
    }
}

using ScreensOnTheMac = MacTest;

TEST_F(ScreensOnTheMac, HoldThePointerInTheirUppermostRow) {
    @autoreleasepool {
        const MacScreens screens;
        EXPECT_TRUE(screens.screens().empty() && !screens.mainScreen());
        fakes::connectScreens(
            {{{{0, 0}, {1440, 900}}, {{0, 60}, {1440, 815}}}, {{{0, 900}, {1920, 1080}}, {{0, 900}, {1920, 1055}}}}, 1);
        EXPECT_EQ(screens.screens().at(0).visibleFrame, (Rectangle{0, 60, 1440, 815}));
        EXPECT_EQ(screens.mainScreen()->frame, (Rectangle{0, 900, 1920, 1080}));
        fakes::pointer = {700, 900};  // the upper edge of the lower screen
        EXPECT_EQ(ActionCuePlacement::screen(screens)->frame, (Rectangle{0, 0, 1440, 900}));
        fakes::pointer = {700, 901};
        EXPECT_EQ(ActionCuePlacement::screen(screens)->frame, (Rectangle{0, 900, 1920, 1080}));
        fakes::connectScreens({}, -1);
    }
}

}  // namespace
}  // namespace kinesta
