#include "actions/ActionExecutor.h"

#include <gtest/gtest.h>

#include "actions/KeyboardLayoutResolver.h"
#include "rules/ShellCommandSettings.h"
#include "support/FakeActionDesktop.h"
#include "support/TableRows.h"

namespace kinesta::testing {
namespace {

GestureAction action(ActionKind kind, std::string value = {}) {
    return {kind, 8, {1}, std::move(value), std::nullopt, std::nullopt, true};
}

GestureAction shortcut(std::uint16_t keyCode, std::int64_t modifiers) {
    return {ActionKind::keyboardShortcut, keyCode, {modifiers}, "", std::nullopt, std::nullopt, std::nullopt};
}

struct ActionExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    ActionExecutor executor{desktop.ports()};
    Subscription observation = desktop.notifications.observe(
        kAppActionRequested, [this](ActionKind kind) { desktop.log.add("request " + std::string(rawValue(kind))); });

    std::string effects(const GestureAction& what, std::int64_t steps = 0) {
        executor.execute(what, steps, false, std::nullopt);
        return joined(desktop.log.takeEffects());
    }
    std::string callsWithCue(const GestureAction& what) {
        executor.execute(what, 0, true, std::nullopt);
        return joined(desktop.log.take());
    }
};

TEST_F(ActionExecutorTest, ShowsTheCueFirstThenActsOrPrompts) {
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow\n  AXCloseButton: button AXEnabled=yes");
    for (const auto& row : tableRows(R"(
keyboardShortcut => prompt => post 100000 key 8 down; post 100000 key 8 up
middleClick => prompt => post click 1 center down at 640 400.5; post click 1 center up at 640 400.5
closeWindow => prompt => AXPress button
openURL https://a => open URL https://a => open URL https://a
openFileOrFolder /a => open file /a => open file /a
launchApplication /a => launch /a => launch /a
shellCommand ls => run /bin/zsh [-lc] [ls] => run /bin/zsh [-lc] [ls]
toggleConfigurationWindow => request toggleConfigurationWindow => request toggleConfigurationWindow
disableAllRules => request disableAllRules => request disableAllRules
adjustVolume => prompt => post - system 8 a00 -1; post - system 8 b00 -1
)",
                                     3)) {
        const std::string kind = row[0].substr(0, row[0].find(' '));
        const GestureAction what = action(fromRawValue<ActionKind>(kind).value(), split(row[0] + " ", " ")[1]);
        for (const std::size_t column : {1U, 1U, 2U}) {  // prompts at every attempt
            desktop.isGranted = column == 2;
            EXPECT_EQ(effects(what, 1), row[column]) << kind;
            executor.execute(what, 1, true, "Label");
            EXPECT_EQ(joined(desktop.log.takeEffects()), "cue " + kind + " 1 Label; " + row[column]);
        }
    }
    observation.end();
    EXPECT_EQ(effects(action(ActionKind::disableAllRules)), "") << "without an observer";
}

TEST_F(ActionExecutorTest, IgnoresIncompleteActionsAndShellCommandsThatAreNotAllowed) {
    const GestureAction command = action(ActionKind::shellCommand, "  echo 'a b' \n");
    EXPECT_EQ(callsWithCue(command), "");
    desktop.defaults.setString(ShellCommandSettings::enabledKey, "perhaps");
    EXPECT_EQ(callsWithCue(command), "");
    desktop.defaults.setBoolean(ShellCommandSettings::enabledKey, true);
    EXPECT_EQ(callsWithCue(command), "cue shellCommand 0 -; run /bin/zsh [-lc] [  echo 'a b' \n]");
    desktop.isGranted = false;
    GestureAction keyless = shortcut(0, 0), refused = command;
    keyless.keyCode.reset();
    refused.shellCommandAcknowledged = false;
    for (const GestureAction& what : {GestureAction{}, keyless, refused})
        EXPECT_EQ(callsWithCue(what), "") << rawValue(what.kind);
}

TEST_F(ActionExecutorTest, PostsTheKeyOfTheLayoutWithFnAroundArrowsOnly) {
    EXPECT_EQ(
        callsWithCue(shortcut(123, 17)),
        "cue keyboardShortcut 0 -; ? trusted; + source; + key 63 down; + key 123 down; + key 123 up; + key 63 up; "
        "post - key 63 down; post b00000 key 123 down; post b00000 key 123 up; post - key 63 up");
    EXPECT_EQ(effects(shortcut(14, 16)), "post 800000 key 14 down; post 800000 key 14 up");
    EXPECT_EQ(effects(shortcut(65535, 0)), "post 0 key 65535 down; post 0 key 65535 up");
    desktop.characters.emplace();
    (*desktop.characters)[12] = "a";
    (*desktop.characters)[123] = "w";
    EXPECT_EQ(effects(shortcut(0, 1)), "post 100000 key 12 down; post 100000 key 12 up");
    EXPECT_EQ(effects(shortcut(13, 20)),
              "post - key 63 down; post a40000 key 123 down; post a40000 key 123 up; post - key 63 up")
        << "flags and fn follow the key that is posted";
}

TEST_F(ActionExecutorTest, PostsTheOtherEventsIfOneCannotBeMade) {
    desktop.events.pointer = {-9.5, 0};
    const std::map<char, GestureAction> actions{
        {'k', shortcut(123, 17)}, {'c', action(ActionKind::middleClick)}, {'s', action(ActionKind::adjustVolume)}};
    for (const auto& row : tableRows(R"(
key 63 down => post b00000 key 123 down; post b00000 key 123 up; post - key 63 up
key 123 down => post - key 63 down; post b00000 key 123 up; post - key 63 up
key 123 up => post - key 63 down; post b00000 key 123 down; post - key 63 up
key 63 up => post - key 63 down; post b00000 key 123 down; post b00000 key 123 up
center down at -9.5 0 => post click 1 center up at -9.5 0
center up at -9.5 0 => post click 1 center down at -9.5 0
system 8 10a00 -1 => post - system 8 10b00 -1
system 8 10b00 -1 => post - system 8 10a00 -1
)")) {
        desktop.events.failing = {"source", row[0]};
        EXPECT_EQ(effects(actions.at(row[0][0]), -1), row[1]) << row[0];
    }
    desktop.events.failing = {"probe"};
    EXPECT_EQ(callsWithCue(actions.at('c')), "cue middleClick 0 -; ? trusted; + source; + probe");
}

TEST_F(ActionExecutorTest, PressesAVolumeKeyOncePerStepUpToABound) {
    desktop.isGranted = false;
    EXPECT_EQ(effects(action(ActionKind::adjustVolume), 0), "") << "not even a prompt";
    desktop.isGranted = true;
    constexpr std::int64_t kBound = ActionExecutor::kMaximumVolumePresses;
    for (const auto& [steps, presses] : std::initializer_list<std::pair<std::int64_t, std::int64_t>>{
             {3, 3}, {-2, 2}, {kBound, kBound}, {kBound + 1, kBound}, {INT64_MAX, kBound}, {INT64_MIN, kBound}}) {
        const std::string step = steps > 0 ? "post - system 8 a00 -1; post - system 8 b00 -1"
                                           : "post - system 8 10a00 -1; post - system 8 10b00 -1";
        EXPECT_EQ(effects(action(ActionKind::adjustVolume), steps),
                  joined(Calls(static_cast<std::size_t>(presses), step)));
    }
}

TEST_F(ActionExecutorTest, OpensOnlyWebAddresses) {
    const auto opened = [&](const std::string& url) { return effects(action(ActionKind::openURL, url)); };
    for (const std::string& url : split("http://a.example|HTTPS://A.example/Path|hTTp:|https://[::1]:80/?q=%2f#x|"
                                        "https://münchen.example/ß|https://a/100%25?a=b&c='d'(e)*,;$@!~",
                                        "|"))
        EXPECT_EQ(opened(url), "open URL " + url);
    for (const std::string& text : split("ftp://a|mailto:a@a|a.example|:|//a|/http://a| https://a|https://a |"
                                         "https://a/\n|https ://a|1http://a|httpsx://a|https|https//a|https://a/%2|"
                                         "https://a/%|https://a/%zz|https://a/\"x\"|https://a/<x>|https://a\\x|"
                                         "\u0127ttps://a|https://a/\x7F|" +
                                             std::string("https://a/\0x", 12),
                                         "|"))
        EXPECT_EQ(opened(text), "") << text;
}

TEST_F(ActionExecutorTest, ExpandsHomeFoldersAndStandardizesOnlyOpenedPaths) {
    for (const auto& row : tableRows(R"(
~ => /home/ada => /home/ada
~/Notes/../a.txt => /home/ada/a.txt => /home/ada/Notes/../a.txt
~bob//x/ => /srv/bob/x => /srv/bob//x/
~root/x => /x => /x
~root => / => /
~nobody/./x => ~nobody/x => ~nobody/./x
 ~/x =>  ~/x =>  ~/x
/../../a/./b//../.. => / => /../../a/./b//../..
/...//.a/..b => /.../.a/..b => /...//.a/..b
../a/../../b/ => ../../b => ../a/../../b/
a/.. => . => a/..
/ä ö/~/$HOME/* => /ä ö/~/$HOME/* => /ä ö/~/$HOME/*
)",
                                     3)) {
        EXPECT_EQ(effects(action(ActionKind::openFileOrFolder, row[0])), "open file " + row[1]);
        EXPECT_EQ(effects(action(ActionKind::launchApplication, row[0])), "launch " + row[2]);
    }
    GestureAction launch = action(ActionKind::launchApplication, "/a");
    launch.applicationArguments = {{"", "-a", " ", "$HOME *", "", "~"}};
    EXPECT_EQ(effects(launch), "launch /a [-a] [ ] [$HOME *] [~]");
}

TEST_F(ActionExecutorTest, PostsATilingShortcutOnlyIfItsMenuItemWasNotPressed) {
    const GestureAction tileLeft = shortcut(123, 20);
    const std::string menu = "AXMenuBar: bar\n  - item AXIdentifier=_zoomLeft: AXEnabled=yes";
    desktop.accessibility.describe(menu);
    EXPECT_EQ(effects(tileLeft), "AXPress item");
    desktop.accessibility.describe(menu + " AXPress=no");
    EXPECT_TRUE(effects(tileLeft).starts_with("AXPress item; post - key 63 down; post a40000 key 123 down; "));
    desktop.isGranted = false;
    EXPECT_EQ(callsWithCue(tileLeft), "cue keyboardShortcut 0 -; ? frontmost; ? trusted; ? trusted; prompt");
}

TEST(KeyboardLayoutResolver, FindsTheLowestKeyInEitherCase) {
    FakeActionDesktop desktop;
    const KeyboardLayoutResolver resolver(desktop);
    EXPECT_EQ(resolver.keyCode("a", 99), 99) << "the layout is unknown";
    KeyboardLayoutCharacters& characters = desktop.characters.emplace();
    for (const auto& [code, name] : {std::pair(0, "q"), {12, "a"}, {13, "A"}, {20, "Y"}, {40, "aa"}, {127, "["}})
        characters[static_cast<std::size_t>(code)] = name;
    std::string codes;
    for (const char* const name : {"A", "q", "Y", "[", "Z", "Return", "aa", ""})
        codes += std::to_string(resolver.keyCode(name, 99)) + " ";
    EXPECT_EQ(codes, "12 0 20 127 99 99 99 99 ");
}

TEST(InProcessNotifications, CallsTheObserversOfTheNameInOrder) {
    InProcessNotifications notifications;
    std::string heard;
    const auto hearing = [&](const std::string& name, const std::string& who) {
        return notifications.observe(name, [&, who](ActionKind kind) {
            heard += who + ' ' + std::string(rawValue(kind)) + "; ";
            if (who == "first" && kind == ActionKind::disableAllRules)
                notifications.post("a", ActionKind::middleClick);
        });
    };
    const auto first = hearing("a", "first"), other = hearing("b", "other"), last = hearing("a", "last");
    notifications.post("a", ActionKind::disableAllRules);
    EXPECT_EQ(heard, "first disableAllRules; first middleClick; last middleClick; last disableAllRules; ");
}

}  // namespace
}  // namespace kinesta::testing
