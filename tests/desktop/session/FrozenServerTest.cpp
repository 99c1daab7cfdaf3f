#include <gtest/gtest.h>

#include <chrono>

#include "actions/ActionExecutor.h"
#include "cli/CommandRunner.h"
#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowPorts.h"
#include "desktop/harness/WindowWatch.h"
#include "platform/linux/keyboard/PostingEventSynthesizer.h"
#include "platform/linux/keyboard/XkbKeyboardLayout.h"
#include "platform/linux/session/DesktopPermission.h"
#include "platform/linux/session/SessionInputPoster.h"

namespace kinesta::testing {
namespace {

TEST(FrozenServer, HoldsUpNoCommandForLong) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    const CommandRunner kinesta;
    const std::string tap = R"("fingerCount":3,"gesture":"singleTap","name":)";
    const std::string rules = "[" +
                              rule("11", tap + "\"key\"", R"("kind":"keyboardShortcut","keyCode":8,"modifiers":1)") +
                              "," + rule("12", tap + "\"close\"", R"("kind":"closeWindow")") + "," +
                              rule("13", tap + "\"launch\"", R"("kind":"launchApplication","value":"/bin/true")") + "]";
    ASSERT_EQ(kinesta.run({"rules", "import", "-"}, rules).status, 0);
    desktop.freezeServer();
    const auto takes = [&](const std::vector<std::string>& command, int status) {
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(kinesta.run(command).status, status) << command.back();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    };
    EXPECT_LT(takes({"doctor"}, 1), 2);
    EXPECT_LT(takes({"perform", "key"}, 1), 2);
    EXPECT_LT(takes({"perform", "close"}, 1), 2);
    EXPECT_LT(takes({"perform", "launch"}, 0), 0.5) << "needs no X server";
    desktop.thawServer();
}

TEST(RoundTrips, AreFewForEachAction) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    WindowWatch watch(desktop);
    ClientWindow window(desktop, watch, {100, 100, 200, 100});
    window.show();
    InMemoryUserDefaults defaults;
    WindowPorts windows;
    X11Connection& connection = windows.connection;
    X11Keyboard keyboard(connection);
    SessionInputPoster poster(connection, keyboard, defaults, [](const std::string&) {});
    PostingEventSynthesizer events(poster, defaults, [](const std::string&) {});
    XkbKeyboardLayout layout(keyboard);
    MessageBus bus;
    DesktopNotifications notifications(bus);
    DesktopPermission permission(poster, notifications, [] { return ""; });
    FakeActionDesktop fake;
    const ActionPorts others = fake.ports();
    ActionExecutor executor({others.clock, others.defaults, others.systemVersion, others.homeFolders, permission,
                             events, layout, others.workspace, others.processes, others.accessibility,
                             others.ownWindows, others.ownMenus, others.notifications, others.cue});
    GestureAction action;
    action.keyCode = 8;
    action.modifiers = ShortcutModifiers::command;
    const auto trips = [&](const std::function<void()>& work) {
        work();  // the first one also reads the keymap
        const unsigned before = connection.roundTrips();
        work();
        return connection.roundTrips() - before;
    };
    EXPECT_LE(trips([&] { EXPECT_TRUE(windows.tiles(WindowTilingMenuCommand::left)); }), 6U);
    EXPECT_LE(trips([&] { EXPECT_TRUE(windows.closes()); }), 11U);
    for (const ActionKind kind : {ActionKind::keyboardShortcut, ActionKind::middleClick}) {
        action.kind = kind;
        const unsigned count = trips([&] { executor.execute(action, 0, false, std::nullopt); });
        EXPECT_GE(count, 1U) << "the server was asked";
        EXPECT_LE(count, 2U);
    }
}

}  // namespace
}  // namespace kinesta::testing
