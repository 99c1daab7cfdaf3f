#include "actions/ActionExecutor.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "rules/ShellCommandSettings.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

GestureAction action(ActionKind kind, std::string value = {}) {
    GestureAction result;
    result.kind = kind;
    result.value = std::move(value);
    result.shellCommandAcknowledged = true;
    return result;
}

GestureAction shortcut(std::uint16_t keyCode, std::int64_t modifiers) {
    GestureAction result = action(ActionKind::keyboardShortcut);
    result.keyCode = keyCode;
    result.modifiers = {modifiers};
    return result;
}

struct ActionExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    ActionExecutor executor{desktop.ports()};
    Subscription observation = desktop.notifications.observe(
        kAppActionRequested, [this](ActionKind kind) { desktop.log.add("request " + std::string(rawValue(kind))); });

    Calls effects(const GestureAction& what, std::int64_t steps = 0) {
        executor.execute(what, steps, false, std::nullopt);
        return desktop.log.takeEffects();
    }
    Calls calls(const GestureAction& what, std::int64_t steps = 0) {
        executor.execute(what, steps, false, std::nullopt);
        return desktop.log.take();
    }
};

TEST_F(ActionExecutorTest, ShowsTheCueFirstThenActsOrPrompts) {
    enum class Permission { needed, notNeeded };
    using enum Permission;
    const std::vector<std::tuple<GestureAction, Permission, Calls>> rows{
        {shortcut(8, 1), needed, {"post 100000 key 8 down", "post 100000 key 8 up"}},
        {action(ActionKind::middleClick),
         needed,
         {"post click 1 center down at 640 400.5", "post click 1 center up at 640 400.5"}},
        {action(ActionKind::closeWindow), needed, {"AXPress button"}},
        {action(ActionKind::openURL, "https://a"), notNeeded, {"open URL https://a"}},
        {action(ActionKind::openFileOrFolder, "/a"), notNeeded, {"open file /a"}},
        {action(ActionKind::launchApplication, "/a"), notNeeded, {"launch /a"}},
        {action(ActionKind::shellCommand, "ls"), notNeeded, {"run /bin/zsh [-lc] [ls]"}},
        {action(ActionKind::toggleConfigurationWindow), notNeeded, {"request toggleConfigurationWindow"}},
        {action(ActionKind::disableAllRules), notNeeded, {"request disableAllRules"}},
        {action(ActionKind::adjustVolume), needed, {"post - system 8 a00 -1", "post - system 8 b00 -1"}},
    };
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow\n  AXCloseButton: button AXEnabled=yes");
    for (const auto& [what, permission, trusted] : rows) {
        const std::string kind(rawValue(what.kind));
        // Prompts at every attempt.
        for (const bool isTrusted : {false, false, true}) {
            desktop.isGranted = isTrusted;
            Calls expected = isTrusted || permission == notNeeded ? trusted : Calls{"prompt"};
            EXPECT_EQ(effects(what, 1), expected) << kind;
            expected.insert(expected.begin(), "cue " + kind + " 1 Label");
            executor.execute(what, 1, true, "Label");
            EXPECT_EQ(desktop.log.takeEffects(), expected) << kind;
        }
    }
    observation.end();
    EXPECT_EQ(effects(action(ActionKind::disableAllRules)), Calls{}) << "without an observer";
}

TEST_F(ActionExecutorTest, IgnoresIncompleteActions) {
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    desktop.isGranted = false;
    GestureAction refused = action(ActionKind::shellCommand, "ls");
    refused.shellCommandAcknowledged = false;
    for (const GestureAction& what : {GestureAction{}, action(ActionKind::keyboardShortcut), refused}) {
        executor.execute(what, 3, true, "Label");
        EXPECT_EQ(desktop.log.take(), Calls{}) << rawValue(what.kind);
    }
}

TEST_F(ActionExecutorTest, RunsShellCommandsUnchangedWhileTheSwitchIsOn) {
    const auto runs = [&] {
        executor.execute(action(ActionKind::shellCommand, "  echo 'a b' \n"), 0, true, std::nullopt);
        return desktop.log.take();
    };
    EXPECT_EQ(runs(), Calls{});
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    EXPECT_EQ(runs(), (Calls{"cue shellCommand 0 -", "run /bin/zsh [-lc] [  echo 'a b' \n]"}));
    desktop.defaults.setString(ShellCommandSettings::enabledKey, "perhaps");
    EXPECT_EQ(runs(), Calls{});
}

TEST_F(ActionExecutorTest, PostsTheKeyOfTheLayoutWithFnAroundArrowsOnly) {
    const Calls left{"post - key 63 down", "post a40000 key 123 down", "post a40000 key 123 up", "post - key 63 up"};
    EXPECT_EQ(calls(shortcut(123, 17)),
              (Calls{"? trusted", "+ source", "+ key 63 down", "+ key 123 down", "+ key 123 up", "+ key 63 up",
                     "post - key 63 down", "post b00000 key 123 down", "post b00000 key 123 up", "post - key 63 up"}));
    EXPECT_EQ(effects(shortcut(14, 16)), (Calls{"post 800000 key 14 down", "post 800000 key 14 up"}));
    EXPECT_EQ(effects(shortcut(65535, 0)), (Calls{"post 0 key 65535 down", "post 0 key 65535 up"}));
    desktop.characters.emplace();
    (*desktop.characters)[12] = "a";
    (*desktop.characters)[123] = "w";
    EXPECT_EQ(effects(shortcut(0, 1)), (Calls{"post 100000 key 12 down", "post 100000 key 12 up"}));
    EXPECT_EQ(effects(shortcut(13, 20)), left) << "flags and fn follow the key that is posted";
    desktop.characters.reset();
    EXPECT_EQ(effects(shortcut(0, 1)), (Calls{"post 100000 key 0 down", "post 100000 key 0 up"}));
}

TEST_F(ActionExecutorTest, PostsTheOtherEventsIfOneCannotBeMade) {
    desktop.events.pointer = {-9.5, 0};
    const GestureAction middle = action(ActionKind::middleClick);
    const std::vector<std::pair<GestureAction, Calls>> rows{
        {shortcut(123, 17), {"key 63 down", "key 123 down", "key 123 up", "key 63 up"}},
        {middle, {"center down at -9.5 0", "center up at -9.5 0"}},
        {action(ActionKind::adjustVolume), {"system 8 10a00 -1", "system 8 10b00 -1"}},
    };
    for (const auto& [what, events] : rows) {
        desktop.events.failing = {"source"};
        const Calls all = effects(what, -1);
        ASSERT_EQ(all.size(), events.size());
        for (std::size_t i = 0; i < events.size(); ++i) {
            desktop.events.failing = {events[i]};
            Calls expected = all;
            expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
            EXPECT_EQ(effects(what, -1), expected) << events[i];
        }
    }
    desktop.events.failing = {"probe"};
    EXPECT_EQ(calls(middle), (Calls{"? trusted", "+ source", "+ probe"}));
}

TEST_F(ActionExecutorTest, PressesAVolumeKeyOncePerStepUpToABound) {
    const GestureAction volume = action(ActionKind::adjustVolume);
    EXPECT_EQ(calls(volume, 0), Calls{});
    constexpr std::int64_t kBound = ActionExecutor::kMaximumVolumePresses;
    const std::vector<std::pair<std::int64_t, std::int64_t>> rows{
        {3, 3}, {-2, 2}, {kBound, kBound}, {kBound + 1, kBound}, {INT64_MAX, kBound}, {INT64_MIN, kBound}};
    for (const auto& [steps, presses] : rows) {
        const std::string key = steps > 0 ? "post - system 8 " : "post - system 8 10";
        Calls expected;
        for (std::int64_t i = 0; i < presses; ++i)
            expected.insert(expected.end(), {key + "a00 -1", key + "b00 -1"});
        EXPECT_EQ(effects(volume, steps), expected);
    }
}

TEST_F(ActionExecutorTest, OpensOnlyWebAddresses) {
    for (const std::string url : {"http://a.example", "HTTPS://A.example/Path", "hTTp:", "https://[::1]:80/?q=%2f#x",
                                  "https://münchen.example/ß", "https://a/100%25?a=b&c='d'(e)*,;$@!~"})
        EXPECT_EQ(effects(action(ActionKind::openURL, url)), Calls{"open URL " + url});
    for (const std::string text : {"ftp://a",
                                   "mailto:a@a",
                                   "a.example",
                                   ":",
                                   "//a",
                                   "/http://a",
                                   " https://a",
                                   "https://a ",
                                   "https://a/\n",
                                   "https ://a",
                                   "1http://a",
                                   "httpsx://a",
                                   "https",
                                   "https//a",
                                   "https://a/%2",
                                   "https://a/%",
                                   "https://a/%zz",
                                   "https://a/\"x\"",
                                   "https://a/<x>",
                                   "https://a\\x",
                                   "\u0127ttps://a",
                                   "https://a/\x7F"})
        EXPECT_EQ(effects(action(ActionKind::openURL, text)), Calls{}) << text;
    EXPECT_EQ(effects(action(ActionKind::openURL, std::string("https://a/\0x", 12))), Calls{});
}

TEST_F(ActionExecutorTest, ExpandsHomeFoldersAndStandardizesOnlyOpenedPaths) {
    const std::vector<std::array<std::string, 3>> rows{
        {"~", "/home/ada", "/home/ada"},
        {"~/Notes/../a.txt", "/home/ada/a.txt", "/home/ada/Notes/../a.txt"},
        {"~bob//x/", "/srv/bob/x", "/srv/bob//x/"},
        {"~root/x", "/x", "/x"},
        {"~root", "/", "/"},
        {"~nobody/./x", "~nobody/x", "~nobody/./x"},
        {" ~/x", " ~/x", " ~/x"},
        {"/../../a/./b//../..", "/", "/../../a/./b//../.."},
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

TEST_F(ActionExecutorTest, PostsATilingShortcutOnlyIfItsMenuItemWasNotPressed) {
    const GestureAction tileLeft = shortcut(123, 20);
    const std::string menu = "AXMenuBar: bar\n  - item AXIdentifier=_zoomLeft: AXEnabled=yes";
    desktop.accessibility.describe(menu);
    EXPECT_EQ(effects(tileLeft), Calls{"AXPress item"});
    desktop.accessibility.describe(menu + " AXPress=no");
    EXPECT_EQ(effects(tileLeft), (Calls{"AXPress item", "post - key 63 down", "post a40000 key 123 down",
                                        "post a40000 key 123 up", "post - key 63 up"}));
    desktop.isGranted = false;
    EXPECT_EQ(calls(tileLeft), (Calls{"? frontmost", "? trusted", "? trusted", "prompt"}));
}

}  // namespace
}  // namespace kinesta::testing
