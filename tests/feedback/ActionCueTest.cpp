#include <gtest/gtest.h>

#include <cmath>

#include "feedback/ActionCueContent.h"
#include "feedback/ActionCuePresenter.h"
#include "feedback/ActionCueSettings.h"
#include "support/CallLog.h"
#include "support/InMemoryUserDefaults.h"
#include "support/Text.h"
#include "support/VirtualMainThread.h"

namespace kinesta::testing {
namespace {

using namespace std::chrono_literals;

TEST(ActionCueContent, NamesWhatTheActionDoesUnlessTheRuleHasAMessage) {
    const auto label = [](ActionKind kind, const std::string& value, std::int64_t steps = 0,
                          const std::optional<std::string>& message = std::nullopt) {
        GestureAction action;
        action.kind = kind;
        action.value = value;
        return ActionCueContent::of(action, steps, message).label;
    };
    using enum ActionKind;
    EXPECT_EQ(label(middleClick, "", 0, "Paste"), "Paste");
    EXPECT_EQ(label(middleClick, "", 0, " \t"), "Middle click");
    EXPECT_EQ(label(keyboardShortcut, ""), "Keyboard shortcut");
    EXPECT_EQ(label(adjustVolume, "", 2), "Volume up");
    EXPECT_EQ(label(adjustVolume, "", -2), "Volume down");
    EXPECT_EQ(label(openURL, " https://ada@www.example.org:8080/a@b?c "), "www.example.org");
    EXPECT_EQ(label(openURL, "http://[2001:db8::1]:80/"), "[2001:db8::1]");
    EXPECT_EQ(label(openURL, "https:///x"), "https:///x");
    EXPECT_EQ(label(openFileOrFolder, "~/Music/Live/"), "Live");
    EXPECT_EQ(label(openFileOrFolder, "//"), "//");
    EXPECT_EQ(label(launchApplication, "/Applications/Text Edit.app/"), "Text Edit");
    EXPECT_EQ(label(launchApplication, "/usr/share/applications/org.gnome.Terminal.desktop"), "Terminal");
    EXPECT_EQ(label(launchApplication, "/usr/share/applications/gimp-2.10.desktop"), "gimp-2.10");
    EXPECT_EQ(label(launchApplication, "/opt/tool-1.2.3"), "tool-1.2.3");
}

TEST(ActionCueSettings, KeepsNumbersInRange) {
    InMemoryUserDefaults defaults;
    const auto read = [&](double stored) {
        defaults.setReal("actionCueDuration.v1", stored);
        defaults.setReal("actionCueOpacity.v1", stored);
        return std::pair(ActionCueSettings::duration(defaults), ActionCueSettings::backgroundOpacity(defaults));
    };
    EXPECT_EQ(read(10), std::pair(5.0, 0.9));
    EXPECT_EQ(read(0.1), std::pair(0.5, 0.25));
    EXPECT_EQ(read(std::nan("")), std::pair(1.5, 0.62));
    EXPECT_EQ(read(INFINITY), std::pair(1.5, 0.62));
}

/// Two monitors side by side, a panel whose fades run in virtual time, and the log of what happens to it, each entry
/// with its milliseconds.
struct ActionCuePresentation : ::testing::Test, Screens, DisplayPreferences {
    struct Panel final : ActionCuePanel {
        explicit Panel(ActionCuePresentation& owner) : test(owner) {}
        void setContent(const ActionCueContent& content) override { test.note(content.label); }
        void setBackgroundOpacity(double value) override { test.opacity = value; }
        void setOrigin(Point value) override { test.origin = value; }
        bool isVisible() const override { return isUp; }
        double alpha() const override {
            const double part = std::chrono::duration<double>(test.mainThread.now() - start).count() / length;
            return part < 1 ? from + (to - from) * part : to;
        }
        void setAlpha(double value) override {
            from = to = value;
            fade.cancel();
            test.note("alpha " + numberText(value));
        }
        void orderFront() override { isUp = true; }
        void orderOut() override {
            isUp = false;
            test.note("out");
        }
        void animateAlpha(double value, Seconds duration, std::function<void()> done) override {
            from = alpha();
            to = value;
            start = test.mainThread.now();
            length = duration;
            test.note("from " + numberText(std::round(from * 100) / 100) + " to " + numberText(to));
            fade = test.mainThread.after(wholeNanoseconds(duration), std::move(done));
        }

        ActionCuePresentation& test;
        bool isUp = false;
        double from = 0, to = 0, length = 1;
        VirtualMainThread::Time start{};
        DelayedTask fade;
    };

    std::vector<Screen> screens() const override { return {left, right}; }
    std::optional<Screen> mainScreen() const override { return left; }
    std::optional<Point> pointerLocation() const override { return pointer; }
    bool reducesTransparency() const override { return isReduced; }
    bool reducesMotion() const override { return isReduced; }

    void note(const std::string& what) { log.add(std::to_string(mainThread.now() / 1ms) + " " + what); }
    void show(const std::string& message) { presenter.show({}, 0, message); }

    Screen left{{0, 0, 640, 800}, {0, 50, 640, 700}};
    Screen right{{640, -100, 640, 900}, {640, -100, 600, 870}};
    std::optional<Point> pointer;
    bool isReduced = false;
    double opacity = 0;
    Point origin;
    CallLog log;
    InMemoryUserDefaults defaults;
    VirtualMainThread mainThread;
    ActionCuePresenter presenter{{defaults, mainThread, *this, *this}, [this] {
                                     note("made");
                                     return std::make_unique<Panel>(*this);
                                 }};
};

TEST_F(ActionCuePresentation, KeepsOpacityAndFullTimeForTheNewerCue) {
    show("A");
    mainThread.advanceTo(80ms);
    show("B");
    mainThread.advanceTo(1630ms);
    show("C");
    mainThread.runRemaining();
    show("D");
    EXPECT_EQ(log.take(), (Calls{"0 made", "0 A", "0 alpha 0", "0 from 0 to 1", "80 B", "80 from 0.5 to 1",
                                 "1580 from 1 to 0", "1630 C", "1630 from 0.75 to 1", "3130 from 1 to 0", "3330 out",
                                 "3330 D", "3330 alpha 0", "3330 from 0 to 1"}));
}

TEST_F(ActionCuePresentation, NeitherFadesNorShowsThroughWhereTheDesktopIsAskedForThat) {
    defaults.setReal("actionCueDuration.v1", 0.5);
    show("A");
    mainThread.advanceTo(100ms);
    EXPECT_EQ(opacity, 0.62);
    isReduced = true;
    show("B");
    mainThread.runRemaining();
    EXPECT_EQ(opacity, 1);
    EXPECT_EQ(log.take(), (Calls{"0 made", "0 A", "0 alpha 0", "0 from 0 to 1", "100 B", "100 alpha 1", "600 out"}));
}

TEST_F(ActionCuePresentation, ShowsOnlyThePreviewWhileSwitchedOff) {
    defaults.setBoolean("actionCueEnabled.v1", false);
    show("A");
    EXPECT_EQ(log.take(), Calls{});
    presenter.preview();
    EXPECT_EQ(log.take().front(), "0 made");
}

TEST_F(ActionCuePresentation, StandsInTheWorkAreaOfThePointersScreen) {
    const auto originAt = [this](const char* position, std::optional<Point> where) {
        defaults.setString("actionCuePosition.v1", position);
        pointer = where;
        show("A");
        return origin;
    };
    const Point onTheRight{640, -100};
    EXPECT_EQ(originAt("center", onTheRight), (Point{830, 313}));
    EXPECT_EQ(originAt("topRight", onTheRight), (Point{992, 698}));
    EXPECT_EQ(originAt("bottomRight", onTheRight), (Point{992, -72}));
    EXPECT_EQ(originAt("bottomRight", Point{0, 0}), (Point{392, 78}));
    EXPECT_EQ(originAt("corner", Point{-1, 0}), (Point{392, 678}));
    EXPECT_EQ(originAt("center", std::nullopt), (Point{210, 378}));
}

}  // namespace
}  // namespace kinesta::testing
