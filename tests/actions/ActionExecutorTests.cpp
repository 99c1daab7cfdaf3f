#include "actions/ActionExecutor.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <tuple>

#include "platform/null/NullActionPorts.h"
#include "rules/ShellCommandSettings.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

constexpr ShortcutModifiers kControlFn = ShortcutModifiers::control | ShortcutModifiers::function;

GestureAction action(ActionKind kind, std::string value = {}) {
    GestureAction result;
    result.kind = kind;
    result.value = std::move(value);
    return result;
}

GestureAction shortcut(std::uint16_t keyCode, ShortcutModifiers modifiers = {}) {
    GestureAction result = action(ActionKind::keyboardShortcut);
    result.keyCode = keyCode;
    result.modifiers = modifiers;
    return result;
}

GestureAction shellCommand(std::string text, std::optional<bool> isAcknowledged = true) {
    GestureAction result = action(ActionKind::shellCommand, std::move(text));
    result.shellCommandAcknowledged = isAcknowledged;
    return result;
}

struct ActionExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    ActionExecutor executor{desktop.ports()};
    Subscription observation = desktop.notifications.observe(
        kAppActionRequested, [this](ActionKind kind) { desktop.log.add("request " + std::string(rawValue(kind))); });

    void run(const GestureAction& what, std::int64_t steps) {
        executor.execute(what, steps, false, std::nullopt);
        EXPECT_EQ(desktop.events.alive, 0) << "something made was not released";
    }
    Calls effects(const GestureAction& what, std::int64_t steps = 0) {
        run(what, steps);
        return desktop.log.takeEffects();
    }
    Calls calls(const GestureAction& what, std::int64_t steps = 0) {
        run(what, steps);
        return desktop.log.take();
    }
};

TEST_F(ActionExecutorTest, EveryKindShowsItsCueFirstAndThenActsOrAsksForThePermission) {
    enum class Permission { needed, notNeeded };
    using enum Permission;
    const std::vector<std::tuple<GestureAction, Permission, Calls>> rows{
        {shortcut(8, {1}), needed, {"post ⌘ C down", "post ⌘ C up"}},
        {action(ActionKind::middleClick),
         needed,
         {"post click 1 center down at 640 400.5", "post click 1 center up at 640 400.5"}},
        {action(ActionKind::closeWindow), needed, {"AXPress button"}},
        {action(ActionKind::openURL, "https://a"), notNeeded, {"open URL https://a"}},
        {action(ActionKind::openFileOrFolder, "/a"), notNeeded, {"open file /a"}},
        {action(ActionKind::launchApplication, "/a"), notNeeded, {"launch /a"}},
        {shellCommand("ls"), notNeeded, {"run /bin/zsh [-lc] [ls]"}},
        {action(ActionKind::toggleConfigurationWindow), notNeeded, {"request toggleConfigurationWindow"}},
        {action(ActionKind::disableAllRules), notNeeded, {"request disableAllRules"}},
        {action(ActionKind::adjustVolume), needed, {"post - system 8 a00 -1", "post - system 8 b00 -1"}},
    };
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow\n  AXCloseButton: button AXEnabled=yes");
    for (const auto& [what, permission, trusted] : rows) {
        const std::string kind(rawValue(what.kind));
        // The prompt comes at every attempt, and the action once the permission is there.
        for (const bool isTrusted : {false, false, true}) {
            desktop.permission.isGranted = isTrusted;
            Calls expected = isTrusted || permission == notNeeded ? trusted : Calls{"prompt"};
            EXPECT_EQ(effects(what, 1), expected) << kind;
            expected.insert(expected.begin(), "cue " + kind + " 1 Label");
            executor.execute(what, 1, true, "Label");
            EXPECT_EQ(desktop.log.takeEffects(), expected) << kind;
        }
    }
    // Nobody need hear an application action.
    observation.end();
    EXPECT_EQ(effects(action(ActionKind::disableAllRules)), Calls{});
}

TEST_F(ActionExecutorTest, AnActionThatIsNotConfiguredDoesNothingAndShowsNoCue) {
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    desktop.permission.isGranted = false;
    for (const GestureAction& what :
         {GestureAction{}, action(ActionKind::keyboardShortcut), shellCommand("ls", false)}) {
        executor.execute(what, 3, true, "Label");
        EXPECT_EQ(desktop.log.take(), Calls{}) << rawValue(what.kind);
    }
}

TEST_F(ActionExecutorTest, AShellCommandRunsAsStoredIfTheSwitchIsOnAtThatMoment) {
    const auto runs = [&] {
        executor.execute(shellCommand("  echo 'a b' \n"), 0, true, std::nullopt);
        return desktop.log.take();
    };
    EXPECT_EQ(runs(), Calls{});
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    EXPECT_EQ(runs(), (Calls{"cue shellCommand 0 -", "run /bin/zsh [-lc] [  echo 'a b' \n]"}));
    desktop.defaults.setString(ShellCommandSettings::enabledKey, "perhaps");
    EXPECT_EQ(runs(), Calls{});
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, false);
    EXPECT_EQ(runs(), Calls{});
}

TEST_F(ActionExecutorTest, PostsAStrokeWithItsFlagsAndFnOnlyAroundArrows) {
    EXPECT_EQ(calls(shortcut(123, {17})),
              (Calls{"? trusted", "+ source", "+ key 63 down", "+ key 123 down", "+ key 123 up", "+ key 63 up",
                     "post - fn down", "post fn⌘# Left down", "post fn⌘# Left up", "post - fn up"}));
    const std::vector<std::tuple<std::uint16_t, std::int64_t, std::string>> rows{
        {14, 16, "fn E"}, {126, 4, "⌃# Up"}, {49, 31, "fn⌃⌥⇧⌘ Space"}, {53, 32, "Escape"}, {65535, 0, "Key 65535"}};
    for (const auto& [code, modifiers, stroke] : rows)
        EXPECT_EQ(effects(shortcut(code, {modifiers})), (Calls{"post " + stroke + " down", "post " + stroke + " up"}));
}

TEST_F(ActionExecutorTest, TakesFlagsAndFnFromTheKeyThatTheLayoutOfTheMomentGives) {
    desktop.layout.characters.emplace();
    (*desktop.layout.characters)[12] = "a";
    (*desktop.layout.characters)[123] = "w";
    EXPECT_EQ(effects(shortcut(0, {1})), (Calls{"post ⌘ Q down", "post ⌘ Q up"}));
    EXPECT_EQ(effects(shortcut(13, kControlFn)),
              (Calls{"post - fn down", "post fn⌃# Left down", "post fn⌃# Left up", "post - fn up"}));
    desktop.layout.characters.reset();
    EXPECT_EQ(effects(shortcut(0, {1})), (Calls{"post ⌘ A down", "post ⌘ A up"}));
}

TEST_F(ActionExecutorTest, AnEventThatCannotBeMadeIsLeftOutAndTheOthersStillGoOut) {
    const Calls stroke{"post - fn down", "post fn⌘# Left down", "post fn⌘# Left up", "post - fn up"};
    const Calls click{"post click 1 center down at -9.5 0", "post click 1 center up at -9.5 0"};
    const Calls step{"post - system 8 10a00 -1", "post - system 8 10b00 -1"};
    const GestureAction left = shortcut(123, {17});
    const GestureAction middle = action(ActionKind::middleClick);
    const GestureAction quieter = action(ActionKind::adjustVolume);
    constexpr int kNone = -1;
    const std::vector<std::tuple<std::string, GestureAction, Calls, int>> rows{
        {"key 63 down", left, stroke, 0},        {"key 123 down", left, stroke, 1},
        {"key 123 up", left, stroke, 2},         {"key 63 up", left, stroke, 3},
        {"source", left, stroke, kNone},         {"center down", middle, click, 0},
        {"center up", middle, click, 1},         {"source", middle, click, kNone},
        {"system 8 10a00 -1", quieter, step, 0}, {"system 8 10b00 -1", quieter, step, 1},
    };
    desktop.events.pointer = {-9.5, 0};
    for (const auto& [failing, what, all, missing] : rows) {
        desktop.events.failing = {failing};
        Calls expected = all;
        if (missing != kNone)
            expected.erase(expected.begin() + missing);
        EXPECT_EQ(effects(what, -1), expected) << failing;
    }
    desktop.events.failing = {"probe"};
    EXPECT_EQ(calls(middle), (Calls{"? trusted", "+ source", "+ probe"}));
    desktop.events.failing = {"center down"};
    EXPECT_EQ(calls(middle), (Calls{"? trusted", "+ source", "+ probe", "+ center down", "+ center up", click[1]}));
}

TEST_F(ActionExecutorTest, PressesAVolumeKeyOnceAStepWithinABoundThatNobodyMeets) {
    const GestureAction volume = action(ActionKind::adjustVolume);
    EXPECT_EQ(calls(volume, 0), Calls{});
    constexpr std::int64_t kBound = ActionExecutor::kMaximumVolumePresses;
    using Limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t steps : {std::int64_t{3}, std::int64_t{-2}, kBound, kBound + 1, Limits::max(),
                                     Limits::min(), std::int64_t{std::numeric_limits<int>::min()}}) {
        const std::string key = steps > 0 ? "system 8 " : "system 8 10";
        const std::int64_t presses = steps == 3 ? 3 : steps == -2 ? 2 : kBound;
        Calls expected{"? trusted"};
        for (std::int64_t i = 0; i < presses; ++i)
            for (const std::string& event : {key + "a00 -1", key + "b00 -1"})
                expected.insert(expected.end(), {"+ " + event, "post - " + event});
        EXPECT_EQ(calls(volume, steps), expected);
    }
}

TEST_F(ActionExecutorTest, OpensWebAddressesAsStoredAndDropsAllElse) {
    for (const std::string url : {"http://a.example", "HTTPS://A.example/Path", "hTTp:", "https://[::1]:80/?q=%2f#x",
                                  "https://münchen.example/ß", "https://a/100%25?a=b&c='d'(e)*,;$@!~"})
        EXPECT_EQ(effects(action(ActionKind::openURL, url)), Calls{"open URL " + url});
    for (const std::string text :
         {"ftp://a",       "mailto:a@a",   "file:///etc/passwd", "a.example",     "www.http:",       ":",
          "://a",          "//a",          "/http://a",          " https://a",    "https://a ",      "https://a/a b",
          "https://a/\n",  "ht tp://a",    "https ://a",         "1http://a",     "httpsx://a",      "https",
          "https//a",      "https://a/%2", "https://a/%",        "https://a/%zz", "https://a/\"x\"", "https://a/`x`",
          "https://a/<x>", "https://a\\x", "\u0127ttps://a",     "https://a/\x7F"})
        EXPECT_EQ(effects(action(ActionKind::openURL, text)), Calls{}) << text;
    EXPECT_EQ(effects(action(ActionKind::openURL, std::string("https://a/\0x", 12))), Calls{});
}

TEST_F(ActionExecutorTest, ExpandsHomeFoldersAndStandardizesOnlyWhatItOpens) {
    const std::vector<std::array<std::string, 3>> rows{
        {"~", "/home/ada", "/home/ada"},
        {"~/Notes/../a.txt", "/home/ada/a.txt", "/home/ada/Notes/../a.txt"},
        {"~/../x", "/home/x", "/home/ada/../x"},
        {"~bob//x/", "/srv/bob/x", "/srv/bob//x/"},
        {"~root/x", "/x", "/x"},
        {"~root", "/", "/"},
        {"~nobody/./x", "~nobody/x", "~nobody/./x"},
        {" ~/x", " ~/x", " ~/x"},
        {"/../../a/./b//../..", "/", "/../../a/./b//../.."},
        {"//a///b", "/a/b", "//a///b"},
        {"/...//.a/..b", "/.../.a/..b", "/...//.a/..b"},
        {"../a/../../b/", "../../b", "../a/../../b/"},
        {"a/..", ".", "a/.."},
        {"/ä ö/~/$HOME/*", "/ä ö/~/$HOME/*", "/ä ö/~/$HOME/*"},
    };
    for (const auto& [value, opened, launched] : rows) {
        EXPECT_EQ(effects(action(ActionKind::openFileOrFolder, value)), Calls{"open file " + opened});
        EXPECT_EQ(effects(action(ActionKind::launchApplication, value)), Calls{"launch " + launched});
    }
    GestureAction launch = action(ActionKind::launchApplication, "/a");
    launch.applicationArguments = {{"", "-a", " ", "$HOME *", "", "~"}};
    EXPECT_EQ(effects(launch), Calls{"launch /a [-a] [ ] [$HOME *] [~]"});
}

TEST_F(ActionExecutorTest, ATilingShortcutPostsItsKeyOnlyIfTheCommandWasNotPerformed) {
    const GestureAction tileLeft = shortcut(123, kControlFn);
    const Calls keys{"post - fn down", "post fn⌃# Left down", "post fn⌃# Left up", "post - fn up"};
    desktop.accessibility.describe("AXMenuBar: bar\n  - item AXIdentifier=_zoomLeft: AXEnabled=yes");
    EXPECT_EQ(effects(tileLeft), Calls{"AXPress item"});
    desktop.version.major = 14;
    EXPECT_EQ(effects(tileLeft), keys);
    desktop.version.major = 15;
    desktop.accessibility.describe("AXMenuBar: bar\n  - item AXIdentifier=_zoomLeft: AXEnabled=yes AXPress=no");
    EXPECT_EQ(effects(tileLeft), (Calls{"AXPress item", keys[0], keys[1], keys[2], keys[3]}));
    desktop.permission.isGranted = false;
    EXPECT_EQ(calls(tileLeft), (Calls{"? frontmost", "? trusted", "? trusted", "prompt"}));
}

TEST_F(ActionExecutorTest, OnAMachineWithoutADesktopOnlyTheApplicationItselfIsReached) {
    NullActionPorts null;
    ActionExecutor alone(null.ports(desktop.clock, desktop.defaults, desktop.notifications));
    EXPECT_FALSE(alone.requestAccessibilityPermission());
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    for (const GestureAction& what :
         {shortcut(123, kControlFn), action(ActionKind::middleClick), action(ActionKind::closeWindow),
          action(ActionKind::openURL, "https://a"), action(ActionKind::openFileOrFolder, "~/a"), shellCommand("ls"),
          action(ActionKind::adjustVolume), action(ActionKind::disableAllRules)})
        alone.execute(what, 2, true, std::nullopt);
    EXPECT_EQ(desktop.log.take(), Calls{"request disableAllRules"});
}

}  // namespace
}  // namespace kinesta::testing
