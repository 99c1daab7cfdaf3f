#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <future>
#include <thread>

#include "desktop/harness/EventWindow.h"
#include "desktop/harness/PhysicalKeyboard.h"
#include "desktop/harness/TestDesktop.h"
#include "platform/linux/keyboard/PostingEventSynthesizer.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "platform/linux/keyboard/XkbKeyboardLayout.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta::testing {
namespace {

using Events = std::vector<std::string>;

/// Posts as actions do, on a desktop with a window that sees it.
struct Posting : ::testing::Test {
    void stroke(std::uint16_t code, std::uint64_t flags) {
        const auto down = synthesizer.makeKeyEvent(nullptr, code, KeyTransition::down);
        const auto up = synthesizer.makeKeyEvent(nullptr, code, KeyTransition::up);
        for (const auto& event : {down.get(), up.get()}) {
            event->setFlags(flags);
            event->post();
        }
        settle();
    }
    /// Returns once the server has taken what was posted.
    void settle() { keyboard.characters(); }

    Events seenAfter(std::uint16_t code, std::uint64_t flags) {
        stroke(code, flags);
        return window.all();
    }

    TestDesktop desktop;
    EventWindow window{desktop};
    PhysicalKeyboard person{desktop};
    X11Connection connection;
    X11Keyboard keyboard{connection};
    X11InputPoster poster{connection, keyboard};
    InMemoryUserDefaults defaults;
    Events log;
    PostingEventSynthesizer synthesizer{poster, defaults, [this](const std::string& line) { log.push_back(line); }};
    XkbKeyboardLayout layout{keyboard};
};

TEST_F(Posting, IsSeenByAClientAsTyped) {
    const std::vector<std::tuple<std::uint16_t, std::uint64_t, Events>> rows{
        {0, 0, {"press a", "release a"}},
        {8, 0x100000, {"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"}},
        {17,
         0x120000,
         {"press Shift_L", "press Shift+Control_L", "press Shift+Control+T", "release Shift+Control+T",
          "release Shift+Control+Control_L", "release Shift+Shift_L"}},
        {48, 0x080000, {"press Alt_L", "press Mod1+Tab", "release Mod1+Tab", "release Mod1+Alt_L"}},
        {123, 0xA00000, {"press Home", "release Home"}},
        {125, 0xA20000, {"press Shift_L", "press Shift+Next", "release Shift+Next", "release Shift+Shift_L"}},
        {51, 0x800000, {"press Delete", "release Delete"}},
        {122, 0x800000, {"press F1", "release F1"}},
        {14, 0x800000, {}},
        {127, 0, {}},
    };
    for (const auto& [code, flags, expected] : rows)
        EXPECT_EQ(seenAfter(code, flags), expected) << code;
    EXPECT_EQ(log.size(), 2U);
    defaults.setString("linux.commandKey.v1", "super");
    EXPECT_EQ(seenAfter(37, 0x100000),
              (Events{"press Super_L", "press Mod4+l", "release Mod4+l", "release Mod4+Super_L"}));
}

TEST_F(Posting, SendsMediaKeysAndTheMiddleClick) {
    for (const std::int64_t data1 : {0x00A00, 0x00B00, 0x10A00, 0x10B00})
        synthesizer.makeSystemDefinedEvent({0, 8, data1, -1})->post();
    const auto where = synthesizer.probePointerLocation(nullptr);
    ASSERT_TRUE(where);
    EXPECT_EQ(*where, (DesktopLocation{640, 400})) << "the X server starts with the pointer in the middle";
    for (const auto transition : {KeyTransition::down, KeyTransition::up})
        synthesizer.makeCenterButtonEvent(nullptr, transition, *where)->post();
    settle();
    EXPECT_EQ(window.all(),
              (Events{"press XF86AudioRaiseVolume", "release XF86AudioRaiseVolume", "press XF86AudioLowerVolume",
                      "release XF86AudioLowerVolume", "press Button2", "release Button2"}));
}

TEST_F(Posting, IsSeenByAProgramThatIsNotOurs) {
    const auto xev = desktop.run({"xev", "-geometry", "1280x800+0+0", "-event", "keyboard", "-event", "button"});
    const auto topmost = [&] {
        const std::unique_ptr<xcb_query_tree_reply_t, decltype(&std::free)> tree(
            xcb_query_tree_reply(desktop.connection(), xcb_query_tree(desktop.connection(), desktop.root()), nullptr),
            &std::free);
        return xcb_query_tree_children(tree.get())[tree->children_len - 1];
    };
    ASSERT_TRUE(eventually([&] { return topmost() != window.window(); }));
    ASSERT_TRUE(desktop.bringToKeyboard(topmost()));
    // The next press: "state 0x4, keycode 54 (keysym 0x63, c), same_screen YES" makes "0x4,c".
    const auto next = [&xev]() -> std::string {
        for (bool isPress = false; const auto line = xev->readLine();) {
            isPress = line->find("Press event") != std::string::npos || (isPress && !line->empty());
            const std::size_t state = line->find("state ");
            if (!isPress || state == std::string::npos)
                continue;
            const std::size_t name = line->find("button ") != std::string::npos
                                         ? line->find("button ")
                                         : line->find(", ", line->find("keysym")) + 2;
            return line->substr(state + 6, line->find(',', state) - state - 5) +
                   line->substr(name, line->find_first_of(",)", name) - name);
        }
        return "nothing";
    };
    const auto seen = [&](std::size_t count) {
        Events events;
        while (events.size() < count)
            events.push_back(next());
        return events;
    };
    stroke(0, 0);
    stroke(8, 0x120000);
    stroke(123, 0xA00000);
    for (const std::int64_t data1 : {0x00A00, 0x00B00})
        synthesizer.makeSystemDefinedEvent({0, 8, data1, -1})->post();
    for (const auto transition : {KeyTransition::down, KeyTransition::up})
        synthesizer.makeCenterButtonEvent(nullptr, transition, {})->post();
    settle();
    EXPECT_EQ(seen(7), (Events{"0x0,a", "0x0,Shift_L", "0x1,Control_L", "0x5,C", "0x0,Home", "0x0,XF86AudioRaiseVolume",
                               "0x0,button 2"}));
    desktop.setLayout("fr");
    stroke(12, 0x100000);  // where q is on other keyboards
    EXPECT_EQ(seen(2), (Events{"0x0,Control_L", "0x4,a"}));
}

TEST_F(Posting, FollowsTheLayoutFromOneStrokeToTheNext) {
    const auto codeOf = [&](const std::string& character) {
        const auto characters = layout.charactersWithoutModifiers();
        for (std::uint16_t code = 0; characters && code < characters->size(); ++code)
            if ((*characters)[code] == character)
                return int{code};
        return -1;
    };
    EXPECT_EQ(codeOf("a"), 0);
    EXPECT_EQ(codeOf("["), 33);
    EXPECT_EQ(seenAfter(static_cast<std::uint16_t>(codeOf("a")), 0), (Events{"press a", "release a"}));
    desktop.setLayout("fr");
    EXPECT_EQ(codeOf("a"), 12);
    EXPECT_EQ(codeOf("m"), 41);
    EXPECT_EQ(codeOf("["), -1) << "only with AltGr";
    EXPECT_EQ(codeOf("^"), -1) << "a dead key types nothing";
    EXPECT_EQ(codeOf("é"), 19);
    EXPECT_EQ(seenAfter(12, 0x100000),
              (Events{"press Control_L", "press Control+a", "release Control+a", "release Control+Control_L"}));
    desktop.setLayout("ru,de");
    EXPECT_EQ(codeOf("ф"), 0);
    EXPECT_EQ(codeOf("a"), -1);
    xcb_connection_t* server = desktop.connection();
    const auto lockGroup = [&] {
        // ISO_Next_Group, as the person's key for it sends
        desktop.run({"setxkbmap", "-option", "grp:menu_toggle"})->waitForEnd();
        person.press(KEY_COMPOSE);
        person.release(KEY_COMPOSE);
        xcb_flush(server);
    };
    lockGroup();
    EXPECT_EQ(codeOf("a"), 0);
    EXPECT_EQ(codeOf("z"), 16);
    EXPECT_EQ(codeOf("ö"), 41);
    person.press(KEY_COMPOSE);  // the group alone changes: the keymap stays
    person.release(KEY_COMPOSE);
    EXPECT_EQ(codeOf("ф"), 0);
}

TEST_F(Posting, AsksTheServerForTheKeymapOnlyWhenItChanged) {
    layout.charactersWithoutModifiers();
    const int before = keyboard.fetches();
    for (int i = 0; i < 50; ++i) {
        layout.charactersWithoutModifiers();
        stroke(8, 0x100000);
    }
    EXPECT_LE(keyboard.fetches(), before + 1) << "the first key of another keyboard counts as a change";
    desktop.setLayout("fr");
    const int inBetween = keyboard.fetches();
    layout.charactersWithoutModifiers();
    EXPECT_EQ(keyboard.fetches(), inBetween + 1);
}

TEST_F(Posting, LeavesHeldModifiersAsTheyWere) {
    // An unwanted one: out of the way for the stroke, and back.
    person.press(KEY_RIGHTSHIFT);
    EXPECT_EQ(window.all(), Events{"press Shift_R"});
    EXPECT_EQ(seenAfter(8, 0x100000), (Events{"release Shift+Shift_R", "press Control_L", "press Control+c",
                                              "release Control+c", "release Control+Control_L", "press Shift_R"}));
    EXPECT_TRUE(person.isDown(KEY_RIGHTSHIFT));
    // A wanted one serves.
    EXPECT_EQ(seenAfter(0, 0x020000), (Events{"press Shift+A", "release Shift+A"}));
    // And the person is the one who lets go of it.
    person.release(KEY_RIGHTSHIFT);
    EXPECT_EQ(window.all(), Events{"release Shift+Shift_R"});
    EXPECT_FALSE(person.isDown(KEY_RIGHTSHIFT));
    EXPECT_EQ(seenAfter(0, 0), (Events{"press a", "release a"}));
    // The same key once more, which the server's posting device believes to be down since.
    person.press(KEY_LEFTCTRL);
    stroke(0, 0);
    person.release(KEY_LEFTCTRL);
    window.all();
    EXPECT_EQ(seenAfter(8, 0x100000),
              (Events{"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"}));
    EXPECT_FALSE(person.isDown(KEY_LEFTCTRL));
}

TEST_F(Posting, LeavesLocksAloneAndKnowsKeysThatPeopleSwapped) {
    person.press(KEY_CAPSLOCK);
    window.all();
    EXPECT_EQ(seenAfter(8, 0x100000), (Events{"press Lock+Control_L", "press Lock+Control+C", "release Lock+Control+C",
                                              "release Lock+Control+Control_L"}))
        << "Caps Lock is held and on, and stays so";
    person.release(KEY_CAPSLOCK);
    person.press(KEY_CAPSLOCK);
    person.release(KEY_CAPSLOCK);
    window.all();
    desktop.run({"setxkbmap", "-option", "ctrl:swapcaps"})->waitForEnd();
    EXPECT_EQ(seenAfter(8, 0x100000),
              (Events{"press Control_L", "press Control+c", "release Control+c", "release Control+Control_L"}))
        << "with the key that is Ctrl now";
    person.press(KEY_CAPSLOCK);
    window.all();
    EXPECT_EQ(seenAfter(8, 0), (Events{"release Control+Control_L", "press c", "release c", "press Control_L"}));
    person.release(KEY_CAPSLOCK);
    desktop.setLayout("fr");
    person.press(KEY_RIGHTALT);
    window.all();
    EXPECT_EQ(seenAfter(8, 0x100000),
              (Events{"release Mod5+ISO_Level3_Shift", "press Control_L", "press Control+c", "release Control+c",
                      "release Control+Control_L", "press ISO_Level3_Shift"}));
    person.release(KEY_RIGHTALT);
}

TEST_F(Posting, SurvivesTheServerAndReturnsWithTheNext) {
    stroke(0, 0);
    EXPECT_TRUE(poster.isAvailable());
    desktop.stopServer();
    stroke(0, 0);
    EXPECT_FALSE(poster.isAvailable());
    EXPECT_EQ(synthesizer.probePointerLocation(nullptr), std::nullopt);
    EXPECT_FALSE(keyboard.modifiersFor(KEY_A));
    ASSERT_TRUE(layout.charactersWithoutModifiers()) << "the system's own layout stands in";
    desktop.startServer();
    EXPECT_TRUE(poster.isAvailable());
    EventWindow again(desktop);
    stroke(0, 0);
    EXPECT_EQ(again.all(), (Events{"press a", "release a"}));
}

TEST(PostingAtTheEnd, LosesNothing) {
    TestDesktop desktop;
    EventWindow window(desktop);
    std::future<void> thawing;
    {
        X11Connection connection;
        X11Keyboard keyboard(connection);
        X11InputPoster poster(connection, keyboard);
        ASSERT_TRUE(poster.isAvailable());
        desktop.freezeServer();
        for (int i = 0; i < 15; ++i)
            for (const auto transition : {KeyTransition::down, KeyTransition::up}) {
                const InputTransition step{KEY_A, transition};
                EXPECT_TRUE(poster.post({&step, 1}));
            }
        // A server that finds a connection closed drops what it has not read of it.
        thawing = std::async(std::launch::async, [&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            desktop.thawServer();
        });
    }
    thawing.wait();
    EXPECT_EQ(window.all().size(), 30U);
}

}  // namespace
}  // namespace kinesta::testing
