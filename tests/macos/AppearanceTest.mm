#include "MacTest.h"
#include "platform/macos/appearance/MacAppearance.h"
#include "platform/macos/foundation/KeyValueObservation.h"

namespace kinesta {
namespace {

using AppearanceOnTheMac = MacTest;
using fakes::DisplayOption;

TEST_F(AppearanceOnTheMac, FollowsTheSystemUntilForced) {
    @autoreleasepool {
        MacDisplayPreferences preferences;
        MacAppearance appearance(preferences);
        int changes = 0;
        const auto counting = appearance.theme().observe([&](const AppTheme&) { ++changes; });
        const auto expect = [&](NamedAppearance name, ThemeContrast contrast, int count) {
            EXPECT_EQ(appearance.appearance(), name);
            EXPECT_EQ(appearance.theme().value(), AppTheme::of(name, contrast));
            EXPECT_EQ(changes, count);
        };
        expect(NamedAppearance::aqua, ThemeContrast::standard, 0);
        fakes::chooseAppearance(NSAppearanceNameDarkAqua);
        expect(NamedAppearance::darkAqua, ThemeContrast::standard, 1);
        fakes::choose(DisplayOption::increaseContrast, true);
        expect(NamedAppearance::darkAqua, ThemeContrast::more, 2);
        fakes::choose(DisplayOption::reduceMotion, true);
        EXPECT_TRUE(preferences.reducesMotion() && !preferences.reducesTransparency());
        appearance.force(NamedAppearance::aqua);
        expect(NamedAppearance::aqua, ThemeContrast::more, 3);
        fakes::chooseAppearance(@"another");  // matches neither
        expect(NamedAppearance::aqua, ThemeContrast::more, 3);
    }
}

TEST_F(AppearanceOnTheMac, ForcesTheWindowAroundTheViewOnly) {
    @autoreleasepool {
        NSWindow* const window = [NSWindow new];
        NSWindow* const next = [NSWindow new];
        NSView* const view = [NSView new];
        MacDisplayPreferences preferences;
        {
            MacAppearance appearance(preferences);
            appearance.force(NamedAppearance::darkAqua);
            appearance.setWindowView((__bridge void*)view);
            (void)objc::takeCalls();
            fakes::moveToWindow(view, window);
            appearance.force(NamedAppearance::aqua);
            fakes::moveToWindow(view, next);
            appearance.force(std::nullopt);
            EXPECT_EQ(objc::takeCalls(),
                      (Calls{"NSWindow#1 setAppearance:NSAppearanceNameDarkAqua",
                             "NSAppearance appearanceNamed:\"NSAppearanceNameAqua\"",
                             "NSWindow#1 setAppearance:NSAppearanceNameAqua",
                             "NSWindow#2 setAppearance:NSAppearanceNameAqua", "NSWindow#2 setAppearance:nil",
                             "NSAppearanceNameAqua bestMatchFromAppearancesWithNames:[\"NSAppearanceNameAqua\", "
                             "\"NSAppearanceNameDarkAqua\"]"}));
        }
        fakes::moveToWindow(view, window);
        EXPECT_EQ(objc::takeCalls().back(), "KinestaAppearanceView#1 removeFromSuperview");
    }
}

TEST_F(AppearanceOnTheMac, HearsOfChangesOnTheMainThreadWhileItLasts) {
    @autoreleasepool {
        NSObject* const object = [NSObject new];
        int calls = 0;
        auto observation = std::make_unique<KeyValueObservation>(object, @"one", [&] { ++calls; });
        EXPECT_EQ(calls, 1);
        fakes::isOnAnotherThread = true;
        fakes::changed(object, @"one");
        fakes::changed(object, @"other");
        EXPECT_EQ(calls, 1);
        fakes::drainMainQueue();
        EXPECT_EQ(calls, 2);
        fakes::changed(object, @"one");
        observation.reset();
        fakes::drainMainQueue();
        EXPECT_EQ(calls, 2);
        fakes::isOnAnotherThread = false;
        // It may end from within its own call.
        observation = std::make_unique<KeyValueObservation>(object, @"one", [&, kept = std::string(99, 'x')] {
            observation.reset();
            calls += static_cast<int>(kept.size());
        });
        fakes::changed(object, @"one");
        EXPECT_EQ(calls, 2 + 2 * 99);
    }
}

}  // namespace
}  // namespace kinesta
