#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <csignal>
#include <future>
#include <thread>

#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/TestWindow.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "platform/linux/keyboard/X11Keyboard.h"
#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;

constexpr std::uint64_t kShift = 0x020000;
constexpr std::uint64_t kCommand = 0x100000;
const Events kCopy{"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"};

/// Posts as actions do, on a desktop with a window that has the keyboard focus.
struct Posting : ::testing::Test {
    Posting() { window.show(); }

    Events seenAfter(std::uint16_t code, std::uint64_t flags) {
        actions.stroke(code, flags);
        return window.events();
    }

    /// Presses or releases a key (an evdev code) of the user's keyboard. The server tracks its keys separately from
    /// those of the device through which programs post.
    void type(std::uint16_t key, bool isDown) {
        constexpr std::uint8_t kKeyboardOfXvfb = 7;
        xcb_connection_t* server = desktop.connection();
        XcbPointer<xcb_input_xi_query_version_reply_t>(
            xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, 2, 3), nullptr));
        const int event = isDown ? XCB_INPUT_DEVICE_KEY_PRESS : XCB_INPUT_DEVICE_KEY_RELEASE;
        const auto cookie = xcb_test_fake_input_checked(
            server, static_cast<std::uint8_t>(xcb_get_extension_data(server, &xcb_input_id)->first_event + event),
            static_cast<std::uint8_t>(key + 8), XCB_CURRENT_TIME, XCB_NONE, 0, 0, kKeyboardOfXvfb);
        EXPECT_FALSE(XcbPointer<xcb_generic_error_t>(xcb_request_check(server, cookie)));
    }
    void press(std::uint16_t key) { type(key, true); }
    void release(std::uint16_t key) { type(key, false); }
    bool isDown(std::uint16_t key) const {
        const XcbPointer<xcb_query_keymap_reply_t> reply(
            xcb_query_keymap_reply(desktop.connection(), xcb_query_keymap(desktop.connection()), nullptr));
        return (reply->keys[(key + 8) / 8] >> (key % 8) & 1) != 0;
    }

    TestDesktop desktop;
    TestWindow window{desktop, TestWindow::kWholeScreen};
    DesktopActions actions;
};

TEST_F(Posting, ReachesAClientAsIfTyped) {
    EXPECT_EQ(seenAfter(17, kShift | kCommand),
              (Events{"press Shift_L", "press Shift+Control_L", "press Shift+Control+T", "release Shift+Control+T",
                      "release Shift+Control+Control_L", "release Shift+Shift_L"}));
    EXPECT_EQ(seenAfter(123, 0xA00000), (Events{"press Home", "release Home"}));
    EXPECT_EQ(seenAfter(14, 0x800000), Events{}) << "fn and a letter";
    actions.defaults().setString("linux.commandKey.v1", "super");
    EXPECT_EQ(seenAfter(37, kCommand),
              (Events{"press Super_L", "press Mod4+l", "release Mod4+l", "release Mod4+Super_L"}));
    actions.run(ActionKind::adjustVolume, 1);
    actions.run(ActionKind::adjustVolume, -1);
    actions.run(ActionKind::middleClick);
    EXPECT_EQ(actions.ports().events.probePointerLocation(nullptr), (DesktopLocation{640, 400}));
    EXPECT_EQ(window.events(),
              (Events{"press XF86AudioRaiseVolume", "release XF86AudioRaiseVolume", "press XF86AudioLowerVolume",
                      "release XF86AudioLowerVolume", "press Button2", "release Button2"}));
}

TEST_F(Posting, FollowsTheLayoutFromOneStrokeToTheNext) {
    const auto codeOf = [&](const std::string& character) {
        const auto characters = actions.ports().keyboardLayout.charactersWithoutModifiers();
        for (std::size_t code = 0; characters && code < characters->size(); ++code)
            if ((*characters)[code] == character)
                return static_cast<int>(code);
        return -1;
    };
    EXPECT_EQ(codeOf("a"), 0);
    EXPECT_EQ(codeOf("["), 33);
    EXPECT_EQ(seenAfter(0, 0), (Events{"press a", "release a"}));
    desktop.setLayout("fr");
    EXPECT_EQ(codeOf("a"), 12);
    EXPECT_EQ(codeOf("["), -1) << "only with AltGr";
    EXPECT_EQ(codeOf("^"), -1) << "a dead key types nothing";
    EXPECT_EQ(codeOf("é"), 19);
    EXPECT_EQ(seenAfter(12, kCommand),
              (Events{"press Control_L", "press Control+a", "release Control+a", "release Control+Control_L"}));
    desktop.setLayout("ru,de");
    EXPECT_EQ(codeOf("ф"), 0);
    EXPECT_EQ(codeOf("a"), -1);
    desktop.run({"setxkbmap", "-option", "grp:menu_toggle"});
    press(KEY_COMPOSE);  // switches to the second layout
    release(KEY_COMPOSE);
    EXPECT_EQ(codeOf("a"), 0);
    EXPECT_EQ(codeOf("ö"), 41);
    press(KEY_COMPOSE);  // now only the group changes
    release(KEY_COMPOSE);
    EXPECT_EQ(codeOf("ф"), 0);
}

TEST_F(Posting, LeavesHeldModifiersAsTheyWere) {
    // A held modifier that the shortcut lacks is released for the stroke.
    press(KEY_RIGHTSHIFT);
    EXPECT_EQ(window.events(), Events{"press Shift_R"});
    EXPECT_EQ(seenAfter(8, kCommand), (Events{"release Shift+Shift_R", "press Control_L", "press Control+c",
                                              "release Control+c", "release Control+Control_L", "press Shift_R"}));
    EXPECT_TRUE(isDown(KEY_RIGHTSHIFT));
    // A held modifier of the shortcut stays down until the user releases it.
    EXPECT_EQ(seenAfter(0, kShift), (Events{"press Shift+A", "release Shift+A"}));
    release(KEY_RIGHTSHIFT);
    EXPECT_EQ(window.events(), Events{"release Shift+Shift_R"});
    EXPECT_FALSE(isDown(KEY_RIGHTSHIFT));
    EXPECT_EQ(seenAfter(0, 0), (Events{"press a", "release a"}));
    // After a stroke this key counts as down on the server's posting device. That must not affect the next stroke.
    press(KEY_LEFTCTRL);
    actions.stroke(0, 0);
    release(KEY_LEFTCTRL);
    window.events();
    EXPECT_EQ(seenAfter(8, kCommand), kCopy);
    EXPECT_FALSE(isDown(KEY_LEFTCTRL));
}

TEST_F(Posting, LeavesLocksAloneAndKnowsSwappedKeys) {
    press(KEY_CAPSLOCK);
    window.events();
    EXPECT_EQ(seenAfter(8, kCommand), (Events{"press Lock+Control_L", "press Lock+Control+C", "release Lock+Control+C",
                                              "release Lock+Control+Control_L"}));
    release(KEY_CAPSLOCK);
    press(KEY_CAPSLOCK);
    release(KEY_CAPSLOCK);
    window.events();
    desktop.run({"setxkbmap", "-option", "ctrl:swapcaps"});
    EXPECT_EQ(seenAfter(8, kCommand), kCopy) << "with the key that is Ctrl now";
    press(KEY_CAPSLOCK);
    window.events();
    EXPECT_EQ(seenAfter(8, 0), (Events{"release Control+Control_L", "press c", "release c", "press Control_L"}));
    release(KEY_CAPSLOCK);
    desktop.setLayout("fr");
    press(KEY_RIGHTALT);
    window.events();
    Events expected = kCopy;
    expected.insert(expected.begin(), "release Mod5+ISO_Level3_Shift");
    expected.push_back("press ISO_Level3_Shift");
    EXPECT_EQ(seenAfter(8, kCommand), expected);
    release(KEY_RIGHTALT);
}

TEST_F(Posting, LosesNothingWhenItEnds) {
    std::future<void> thawing;
    {
        X11Connection connection;
        X11Keyboard keyboard(connection);
        X11InputPoster poster(connection, keyboard);
        ASSERT_TRUE(poster.isAvailable());
        desktop.server().signal(SIGSTOP);
        for (int i = 0; i < 15; ++i)
            for (const auto transition : {KeyTransition::down, KeyTransition::up}) {
                const InputTransition step{KEY_A, transition};
                EXPECT_TRUE(poster.post({&step, 1}));
            }
        // The server drops unread requests when a connection is closed. Nothing shows when closing begins, so the
        // server stays stopped for a moment.
        thawing = std::async(std::launch::async, [&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            desktop.server().signal(SIGCONT);
        });
    }
    thawing.wait();
    EXPECT_EQ(window.events().size(), 30U);
}

TEST(PostingWithoutAServer, ReturnsWithTheNextOne) {
    DesktopActions actions;
    const auto isTrusted = [&] { return actions.ports().permission.isTrusted(); };
    EXPECT_FALSE(isTrusted());
    for (int i = 0; i < 2; ++i) {
        TestDesktop desktop({.hasWindowManager = true});
        EXPECT_TRUE(isTrusted());
        TestWindow window(desktop, TestWindow::kWholeScreen);
        window.show();
        actions.stroke(0, 0);
        EXPECT_EQ(window.events(), (Events{"press a", "release a"}));
        EXPECT_TRUE(eventually([&] { return actions.closes(); }));
        desktop.stopServer();
        actions.stroke(0, 0);
        EXPECT_FALSE(isTrusted());
        EXPECT_EQ(actions.ports().events.probePointerLocation(nullptr), std::nullopt);
        EXPECT_FALSE(actions.closes());
        EXPECT_EQ(actions.frontmost(), std::nullopt);
        EXPECT_TRUE(actions.ports().keyboardLayout.charactersWithoutModifiers()) << "the layout of the system";
    }
}

TEST(X11Keyboard, FetchesTheKeymapOnlyWhenItChanged) {
    TestDesktop desktop;
    X11Connection connection;
    X11Keyboard keyboard(connection);
    keyboard.characters();
    const int before = keyboard.fetches();
    for (int i = 0; i < 50; ++i)
        keyboard.modifiersFor(KEY_A);
    EXPECT_EQ(keyboard.fetches(), before);
    desktop.setLayout("fr");
    keyboard.characters();
    EXPECT_EQ(keyboard.fetches(), before + 1);
}

}  // namespace
}  // namespace kinesta::testing
