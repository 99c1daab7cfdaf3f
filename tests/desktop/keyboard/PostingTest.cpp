#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <csignal>
#include <future>
#include <thread>

#include "desktop/harness/DesktopActions.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "platform/linux/keyboard/X11Keyboard.h"

namespace kinesta::testing {
namespace {

constexpr std::uint64_t kShift = 0x020000;
constexpr std::uint64_t kCommand = 0x100000;
const std::string kCopy = "KEY_LEFTCTRL down Control+KEY_C down Control+KEY_C up Control+KEY_LEFTCTRL up";

/// Posts as actions do, on a desktop with a window that has the keyboard focus.
struct Posting : ::testing::Test {
    Posting() { window.show(); }

    std::string seenAfter(std::uint16_t code, std::uint64_t flags) {
        actions.stroke(code, flags);
        return window.events();
    }

    /// Presses or releases a key (an evdev code) of the user's keyboard. The server tracks its keys separately from
    /// those of the device through which programs post.
    std::string type(std::uint16_t key, int event) {
        constexpr std::uint8_t kKeyboardOfXvfb = 7;
        xcb_connection_t* server = desktop.connection();
        XcbPointer<xcb_input_xi_query_version_reply_t>(
            xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, 2, 3), nullptr));
        const auto cookie = xcb_test_fake_input_checked(
            server, static_cast<std::uint8_t>(xcb_get_extension_data(server, &xcb_input_id)->first_event + event),
            static_cast<std::uint8_t>(key + 8), XCB_CURRENT_TIME, XCB_NONE, 0, 0, kKeyboardOfXvfb);
        EXPECT_FALSE(XcbPointer<xcb_generic_error_t>(xcb_request_check(server, cookie)));
        return window.events();
    }
    std::string press(std::uint16_t key) { return type(key, XCB_INPUT_DEVICE_KEY_PRESS); }
    std::string release(std::uint16_t key) { return type(key, XCB_INPUT_DEVICE_KEY_RELEASE); }

    TestDesktop desktop;
    TestWindow window{desktop, kWholeScreen};
    DesktopActions actions;
};

TEST_F(Posting, ReachesAClientAsIfTyped) {
    EXPECT_EQ(seenAfter(17, kShift | kCommand),
              "KEY_LEFTSHIFT down Shift+KEY_LEFTCTRL down Shift+Control+KEY_T down Shift+Control+KEY_T up "
              "Shift+Control+KEY_LEFTCTRL up Shift+KEY_LEFTSHIFT up");
    EXPECT_EQ(seenAfter(123, 0xA00000), "KEY_HOME down KEY_HOME up");
    EXPECT_EQ(seenAfter(14, 0x800000), "") << "fn and a letter";
    actions.defaults().setString("linux.commandKey.v1", "super");
    EXPECT_EQ(seenAfter(37, kCommand), "KEY_LEFTMETA down Mod4+KEY_L down Mod4+KEY_L up Mod4+KEY_LEFTMETA up");
    actions.run(ActionKind::adjustVolume, 1);
    actions.run(ActionKind::adjustVolume, -1);
    actions.run(ActionKind::middleClick);
    EXPECT_EQ(actions.ports().events.probePointerLocation(nullptr), (DesktopLocation{640, 400}));
    EXPECT_EQ(window.events(),
              "KEY_VOLUMEUP down KEY_VOLUMEUP up KEY_VOLUMEDOWN down KEY_VOLUMEDOWN up BTN2 down BTN2 up");
}

TEST_F(Posting, FollowsTheLayoutFromOneStrokeToTheNext) {
    const auto codeOf = [&](const std::string& character) {
        const auto characters = actions.ports().keyboardLayout.charactersWithoutModifiers();
        return characters ? std::ranges::find(*characters, character) - characters->begin() : -1;
    };
    constexpr std::ptrdiff_t kNowhere = std::tuple_size_v<KeyboardLayoutCharacters>;
    EXPECT_EQ(codeOf("a"), 0);
    EXPECT_EQ(codeOf("["), 33);
    EXPECT_EQ(seenAfter(0, 0), "KEY_A down KEY_A up");
    desktop.setLayout("fr");
    EXPECT_EQ(codeOf("a"), 12);
    EXPECT_EQ(codeOf("["), kNowhere) << "only with AltGr";
    EXPECT_EQ(codeOf("^"), kNowhere) << "a dead key types nothing";
    EXPECT_EQ(codeOf("é"), 19);
    EXPECT_EQ(seenAfter(12, kCommand), "KEY_LEFTCTRL down Control+KEY_Q down Control+KEY_Q up Control+KEY_LEFTCTRL up");
    desktop.setLayout("ru,de");
    EXPECT_EQ(codeOf("ф"), 0);
    EXPECT_EQ(codeOf("a"), kNowhere);
    EXPECT_TRUE(run("setxkbmap -option grp:menu_toggle"));
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
    EXPECT_EQ(press(KEY_RIGHTSHIFT), "KEY_RIGHTSHIFT down");
    EXPECT_EQ(seenAfter(8, kCommand), "Shift+KEY_RIGHTSHIFT up " + kCopy + " KEY_RIGHTSHIFT down");
    // A held modifier of the shortcut stays down until the user releases it.
    EXPECT_EQ(seenAfter(0, kShift), "Shift+KEY_A down Shift+KEY_A up");
    EXPECT_EQ(release(KEY_RIGHTSHIFT), "Shift+KEY_RIGHTSHIFT up");
    EXPECT_EQ(seenAfter(0, 0), "KEY_A down KEY_A up");
    // After a stroke this key counts as down on the server's posting device. That must not affect the next strokes.
    press(KEY_LEFTCTRL);
    actions.stroke(0, 0);
    release(KEY_LEFTCTRL);
    EXPECT_EQ(seenAfter(8, kCommand), kCopy);
    EXPECT_EQ(seenAfter(0, 0), "KEY_A down KEY_A up");
}

TEST_F(Posting, LeavesLocksAloneAndKnowsSwappedKeys) {
    press(KEY_CAPSLOCK);
    EXPECT_EQ(seenAfter(8, kCommand),
              "Lock+KEY_LEFTCTRL down Lock+Control+KEY_C down Lock+Control+KEY_C up Lock+Control+KEY_LEFTCTRL up");
    release(KEY_CAPSLOCK);
    press(KEY_CAPSLOCK);
    release(KEY_CAPSLOCK);
    EXPECT_TRUE(run("setxkbmap -option ctrl:swapcaps"));
    EXPECT_EQ(seenAfter(8, kCommand), "KEY_CAPSLOCK down Control+KEY_C down Control+KEY_C up Control+KEY_CAPSLOCK up");
    press(KEY_CAPSLOCK);
    EXPECT_EQ(seenAfter(8, 0), "Control+KEY_CAPSLOCK up KEY_C down KEY_C up KEY_CAPSLOCK down");
    release(KEY_CAPSLOCK);
    desktop.setLayout("fr");
    press(KEY_RIGHTALT);
    EXPECT_EQ(seenAfter(8, kCommand), "Mod5+KEY_RIGHTALT up " + kCopy + " KEY_RIGHTALT down");
}

TEST_F(Posting, LosesNothingWhenItEnds) {
    std::future<void> thawing;
    {
        X11Connection connection;
        X11Keyboard keyboard(connection);
        X11InputPoster poster(connection, keyboard);
        ASSERT_TRUE(poster.isAvailable());
        desktop.server->signal(SIGSTOP);
        for (int i = 0; i < 30; ++i) {
            const InputTransition step{KEY_A, i % 2 == 0 ? KeyTransition::down : KeyTransition::up};
            EXPECT_TRUE(poster.post({&step, 1}));
        }
        // The server drops unread requests when a connection is closed. Nothing shows when closing begins, so the
        // server stays stopped for a moment.
        thawing = std::async(std::launch::async, [&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            desktop.server->signal(SIGCONT);
        });
    }
    thawing.wait();
    EXPECT_EQ(std::ranges::count(window.events(), ' '), 59);  // two words each
}

TEST(PostingWithoutAServer, ReturnsWithTheNextOne) {
    DesktopActions actions;
    const auto isTrusted = [&] { return actions.ports().permission.isTrusted(); };
    EXPECT_FALSE(isTrusted());
    for (int i = 0; i < 2; ++i) {
        TestDesktop desktop(TestDesktop::openbox);
        EXPECT_TRUE(isTrusted());
        TestWindow window(desktop, kWholeScreen);
        window.show();
        actions.stroke(0, 0);
        EXPECT_EQ(window.events(), "KEY_A down KEY_A up");
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
