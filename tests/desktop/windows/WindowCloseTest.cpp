#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowPorts.h"
#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {
namespace {

struct WindowCloseTest : ::testing::Test {
    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    WindowWatch watch{desktop};
    WindowPorts ports;
};

TEST_F(WindowCloseTest, ClosesRealEditorsAndLeavesTheirSaveDialogsToThePerson) {
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"mousepad", "--disable-server"}, {"featherpad", "--standalone"}}) {
        const auto unchanged = desktop.run(command);
        ASSERT_NE(watch.awaitWindowOf(unchanged->pid()), 0U) << command[0];
        EXPECT_TRUE(ports.closes()) << command[0];
        EXPECT_TRUE(unchanged->waitForEnd()) << command[0];
        const auto program = desktop.run(command);
        const xcb_window_t editor = watch.awaitWindowOf(program->pid());
        ASSERT_NE(editor, 0U) << command[0];
        ASSERT_TRUE(desktop.run({"xdotool", "type", "not saved"})->waitForEnd());
        ASSERT_TRUE(ports.closes());
        const xcb_window_t dialog = watch.awaitWindowOf(program->pid(), editor);
        ASSERT_NE(dialog, 0U) << command[0] << " does not ask";
        EXPECT_FALSE(ports.closes()) << command[0] << ": the dialog is in front";
        watch.tell(editor, "_NET_ACTIVE_WINDOW", {2});
        EXPECT_FALSE(ports.closes()) << command[0] << ": its owner is in front";
        watch.letWindowManagerCatchUp(editor);
        EXPECT_TRUE(watch.isManaged(dialog)) << command[0];
        program->signal(SIGKILL);
        ASSERT_TRUE(watch.await([this] { return watch.stacking().empty(); }));
        EXPECT_FALSE(ports.closes()) << "an empty desktop";
    }
}

TEST_F(WindowCloseTest, LeavesAWindowAloneWhileAModalDialogWaitsForAnAnswer) {
    const auto connection = ClientWindow::connect(desktop);
    constexpr xcb_window_t kLeader = 0x77;
    ClientWindow editor(desktop, watch, {100, 100, 300, 200}, connection);
    editor.setGroup(kLeader).show();
    constexpr xcb_window_t kNone = 0;
    const struct {
        const char* description;
        xcb_window_t group, owner;
        bool holdsBack;
    } rows[] = {
        {"its own", kNone, editor.window(), true},
        {"its group's, owned by the root", kLeader, desktop.root(), true},
        {"its group's, owned by the leader", kLeader, kLeader, true},
        {"its group's, without an owner", kLeader, kNone, true},
        {"another group's", kLeader + 1, desktop.root(), false},
    };
    for (const auto& row : rows) {
        ClientWindow dialog(desktop, watch, {200, 200, 100, 50}, connection);
        dialog.setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DIALOG"});
        dialog.setAtoms("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"});
        if (row.group != kNone)
            dialog.setGroup(row.group);
        if (row.owner != kNone)
            dialog.setTransientFor(row.owner);
        dialog.show();
        EXPECT_FALSE(ports.closes()) << row.description << ": the dialog is in front";
        EXPECT_FALSE(dialog.wasAskedToClose()) << row.description;
        // Openbox hands the focus on to the dialog; other window managers do not.
        watch.pretendActive(editor.window());
        EXPECT_EQ(ports.closes(), !row.holdsBack) << row.description << ": its owner is in front";
        EXPECT_EQ(editor.wasAskedToClose(), !row.holdsBack) << row.description;
    }
    ClientWindow find(desktop, watch, {200, 200, 100, 50}, connection);
    find.setTransientFor(editor.window()).show();
    EXPECT_TRUE(ports.closes()) << "a dialog that is not modal is a window like others";
    EXPECT_TRUE(find.awaitCloseRequest());
}

TEST_F(WindowCloseTest, LeavesWindowsAloneThatAreNotToBeClosed) {
    ClientWindow window(desktop, watch, {100, 100, 300, 200});
    window.show();
    for (const char* type : {"DESKTOP", "DOCK", "TOOLBAR", "MENU", "UTILITY", "SPLASH"}) {
        ASSERT_TRUE(watch.awaitActive(window.window())) << "openbox is done with the one before";
        ClientWindow other(desktop, watch, {500, 100, 200, 100});
        // A type that only some other desktop knows says nothing.
        other.setAtoms("_NET_WM_WINDOW_TYPE",
                       {"_KDE_NET_WM_WINDOW_TYPE_OVERRIDE", std::string("_NET_WM_WINDOW_TYPE_") + type});
        other.show(false);
        watch.activate(other.window());
        EXPECT_FALSE(ports.closes()) << type;
        EXPECT_FALSE(other.wasAskedToClose()) << type;
    }
    ASSERT_TRUE(watch.awaitActive(window.window()));
    ClientWindow stubborn(desktop, watch, {500, 300, 200, 100});
    stubborn.show();
    // Openbox, which writes this too, is done with it once it has done something about another window.
    watch.letWindowManagerCatchUp(window.window());
    stubborn.setAtoms("_NET_WM_ALLOWED_ACTIONS", {"_NET_WM_ACTION_MOVE"}).send();
    EXPECT_FALSE(ports.closes()) << "the window manager does not allow closing it";
    stubborn.setAtoms("_NET_WM_ALLOWED_ACTIONS", {}).send();
    EXPECT_FALSE(ports.closes()) << "nor anything else";
    EXPECT_FALSE(stubborn.wasAskedToClose());
    stubborn.remove("_NET_WM_ALLOWED_ACTIONS").send();
    EXPECT_TRUE(ports.closes()) << "who does not tell what is allowed allows it";
    EXPECT_TRUE(stubborn.awaitCloseRequest());

    // Openbox takes the attention off a window that it minimizes; a slower one would still name it.
    watch.minimize(window.window());
    watch.pretendActive(window.window());
    EXPECT_FALSE(ports.closes()) << "minimized";
    EXPECT_FALSE(window.wasAskedToClose());
}

TEST_F(WindowCloseTest, PressesNothingOnceThePersonHasGoneElsewhere) {
    const auto connection = ClientWindow::connect(desktop);
    ClientWindow first(desktop, watch, {100, 100, 300, 200}, connection);
    ClientWindow sibling(desktop, watch, {300, 300, 300, 200}, connection);
    ClientWindow stranger(desktop, watch, {600, 100, 300, 200});
    sibling.show();
    stranger.show();
    first.show();
    for (ClientWindow* other : {&stranger, &sibling}) {
        watch.activate(first.window());
        EXPECT_FALSE(ports.closes([&] { watch.activate(other->window()); }));
        EXPECT_FALSE(first.wasAskedToClose());
        EXPECT_FALSE(other->wasAskedToClose());
    }
    watch.activate(first.window());
    EXPECT_FALSE(ports.closes([&] {
        xcb_destroy_window(connection.get(), first.window());
        xcb_flush(connection.get());
        EXPECT_TRUE(watch.await([&] { return !watch.isManaged(first.window()); }));
    })) << "it went by itself";
    EXPECT_FALSE(sibling.wasAskedToClose());
    EXPECT_FALSE(stranger.wasAskedToClose());
}

TEST_F(WindowCloseTest, ClosesItsOwnWindowsByTheSameRules) {
    const auto own = static_cast<std::uint32_t>(getpid());
    ClientWindow window(desktop, watch, {100, 100, 300, 200});
    window.set("_NET_WM_PID", XCB_ATOM_CARDINAL, {own}).show();
    EXPECT_TRUE(ports.closes());
    EXPECT_TRUE(window.awaitCloseRequest());
    {
        ClientWindow palette(desktop, watch, {500, 100, 200, 100});
        palette.setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_UTILITY"});
        palette.set("_NET_WM_PID", XCB_ATOM_CARDINAL, {own}).show(false);
        watch.activate(palette.window());
        EXPECT_FALSE(ports.closes());
        EXPECT_FALSE(palette.wasAskedToClose() || window.wasAskedToClose());
    }
    ClientWindow dialog(desktop, watch, {200, 200, 100, 50});
    dialog.setTransientFor(window.window()).setAtoms("_NET_WM_STATE", {"_NET_WM_STATE_MODAL"});
    dialog.set("_NET_WM_PID", XCB_ATOM_CARDINAL, {own}).show();
    EXPECT_FALSE(ports.closes());
    EXPECT_FALSE(dialog.wasAskedToClose());
    EXPECT_FALSE(window.wasAskedToClose());
}

}  // namespace
}  // namespace kinesta::testing
