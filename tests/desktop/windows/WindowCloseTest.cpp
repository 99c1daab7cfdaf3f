#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "desktop/harness/DesktopActions.h"

namespace kinesta::testing {
namespace {

struct WindowClosing : DesktopActionsTest {};

TEST_F(WindowClosing, ClosesEditorsAndLeavesSaveDialogsToThePerson) {
    for (const std::string command : {"mousepad --disable-server", "featherpad --standalone"}) {
        ChildProcess unchanged(command);
        desktop.awaitWindowOf(unchanged);
        EXPECT_TRUE(actions.closes()) << command;
        EXPECT_TRUE(unchanged.waitForEnd()) << command;
        ChildProcess program(command);
        const xcb_window_t editor = desktop.awaitWindowOf(program);
        EXPECT_TRUE(run("xdotool type 'not saved'"));
        ASSERT_TRUE(actions.closes());
        const xcb_window_t dialog = desktop.awaitWindowOf(program, editor);
        EXPECT_FALSE(actions.closes()) << command << ": the dialog is in front";
        desktop.request(editor, "_NET_ACTIVE_WINDOW", {2});
        EXPECT_FALSE(actions.closes()) << command << ": its owner is in front";
        desktop.letWindowManagerCatchUp();
        EXPECT_TRUE(desktop.isManaged(dialog)) << command;
        program.end(SIGKILL);
        ASSERT_TRUE(eventually([this] { return desktop.stacking().empty(); }));
        EXPECT_FALSE(actions.closes()) << "an empty desktop";
    }
}

TEST_F(WindowClosing, WaitsForTheAnswerToAModalDialog) {
    constexpr xcb_window_t kLeader = 0x77;
    const auto connection = TestWindow::connect(desktop);
    TestWindow editor(desktop, {100, 100, 300, 200}, connection);
    editor.setGroup(kLeader).show();
    const struct {
        const char* description;
        xcb_window_t group, owner;
        bool holdsBack;
    } rows[] = {
        {"its own", 0, editor.id(), true},
        {"its group's, owned by the root", kLeader, desktop.root(), true},
        {"its group's, without an owner", kLeader, 0, true},
        {"another group's", kLeader + 1, desktop.root(), false},
    };
    for (const auto& row : rows) {
        TestWindow dialog(desktop, {200, 200, 100, 50}, connection);
        dialog.setType("DIALOG").setModal();
        if (row.group != 0)
            dialog.setGroup(row.group);
        if (row.owner != 0)
            dialog.setOwner(row.owner);
        dialog.show();
        EXPECT_FALSE(actions.closes()) << row.description << ": the dialog is in front";
        EXPECT_EQ(dialog.events(), "") << row.description;
        // Openbox gives the focus to the dialog; other window managers do not.
        desktop.pretendActive(editor.id());
        EXPECT_EQ(actions.closes(), !row.holdsBack) << row.description << ": its owner is in front";
        EXPECT_EQ(editor.events(), row.holdsBack ? "" : "close") << row.description;
    }
    TestWindow find(desktop, {200, 200, 100, 50}, connection);
    find.setOwner(editor.id()).show();
    EXPECT_TRUE(actions.closes()) << "not modal";
    EXPECT_EQ(find.events(), "close");
}

TEST_F(WindowClosing, LeavesSpecialWindowsAlone) {
    TestWindow window(desktop, {100, 100, 300, 200});
    window.setProcess(getpid()).show();  // our own windows follow the same rules
    EXPECT_TRUE(actions.closes());
    EXPECT_EQ(window.events(), "close");
    for (const char* type : {"DESKTOP", "DOCK", "TOOLBAR", "MENU", "UTILITY", "SPLASH"}) {
        for (const pid_t process : {getppid(), getpid()}) {
            ASSERT_TRUE(desktop.becomesActive(window.id()));
            TestWindow other(desktop, {500, 100, 200, 100});
            // The first type is unknown to Kinesta and must be ignored.
            other.setType(type, "_KDE_NET_WM_WINDOW_TYPE_OVERRIDE").setProcess(process).show(false);
            desktop.activate(other.id());
            EXPECT_FALSE(actions.closes()) << type;
            EXPECT_EQ(other.events(), "") << type;
        }
    }
    ASSERT_TRUE(desktop.becomesActive(window.id()));
    TestWindow stubborn(desktop, {500, 300, 200, 100});
    stubborn.show();  // openbox also sets the allowed actions
    for (const std::vector<std::string>& allowed : {std::vector<std::string>{"_NET_WM_ACTION_MOVE"}, {}}) {
        stubborn.setAtoms("_NET_WM_ALLOWED_ACTIONS", allowed);
        EXPECT_FALSE(actions.closes());
    }
    EXPECT_EQ(stubborn.events(), "");
    xcb_delete_property(desktop.connection(), stubborn.id(), desktop.atom("_NET_WM_ALLOWED_ACTIONS"));
    ASSERT_TRUE(desktop.property(stubborn.id(), "_NET_WM_ALLOWED_ACTIONS").empty());
    EXPECT_TRUE(actions.closes()) << "all is allowed where nothing is listed";
    EXPECT_EQ(stubborn.events(), "close");

    const auto before = desktop.frame(window.id());
    for (const TestWindow* each : {&stubborn, &window})
        desktop.minimize(each->id());
    desktop.pretendActive(window.id());
    EXPECT_FALSE(actions.closes()) << "minimized";
    EXPECT_FALSE(actions.tiles(WindowTilingMenuCommand::fill)) << "minimized";
    EXPECT_EQ(window.events(), "");
    desktop.activate(window.id());
    EXPECT_TRUE(eventually([&] { return desktop.frame(window.id()) == before; }));
}

TEST_F(WindowClosing, ClosesAndTilesNothingOnceThePersonHasGoneElsewhere) {
    const auto connection = TestWindow::connect(desktop);
    TestWindow first(desktop, {100, 100, 300, 200}, connection);
    TestWindow sibling(desktop, {300, 300, 300, 200}, connection);
    TestWindow stranger(desktop, {600, 100, 300, 200});
    for (TestWindow* each : {&sibling, &stranger, &first})
        each->show();
    const auto received = [&] { return first.events() + sibling.events() + stranger.events(); };
    const auto places = [&] { return std::pair(desktop.frame(first.id()), desktop.frame(stranger.id())); };
    const auto before = places();
    EXPECT_FALSE(actions.tiles(WindowTilingMenuCommand::fill, [&] { desktop.activate(stranger.id()); }));
    EXPECT_EQ(received(), "");
    EXPECT_EQ(places(), before);
    for (TestWindow* other : {&stranger, &sibling}) {
        desktop.activate(first.id());
        EXPECT_FALSE(actions.closes([&] { desktop.activate(other->id()); }));
        EXPECT_EQ(received(), "");
    }
    desktop.activate(first.id());
    EXPECT_FALSE(actions.closes([&] {
        xcb_destroy_window(connection.get(), first.id());
        xcb_flush(connection.get());
        EXPECT_TRUE(eventually([&] { return !desktop.isManaged(first.id()); }));
    })) << "it went by itself";
    EXPECT_EQ(received(), "");
    desktop.pretendActive(first.id());
    EXPECT_EQ(actions.frontmost(), std::nullopt) << "the window is gone";
    EXPECT_FALSE(actions.closes());
    EXPECT_FALSE(actions.tiles(WindowTilingMenuCommand::fill));
    desktop.activate(stranger.id());
    EXPECT_TRUE(actions.closes());
}

TEST_F(WindowClosing, KnowsTheProcessInFront) {
    EXPECT_EQ(actions.frontmost(), std::nullopt) << "an empty desktop";
    {
        const ChildProcess terminal("xterm");
        desktop.awaitWindowOf(terminal);
        EXPECT_EQ(actions.frontmost(), terminal.pid());
    }
    std::string machine(256, '\0');
    ASSERT_EQ(gethostname(machine.data(), machine.size() - 1), 0);
    const struct {
        const char* machine;
        xcb_atom_t type;
        int number;
        bool isProcess;
    } rows[] = {{machine.c_str(), XCB_ATOM_CARDINAL, 4711, true},
                {"elsewhere", XCB_ATOM_CARDINAL, 4711, false},
                {machine.c_str(), XCB_ATOM_CARDINAL, 0, false},
                {machine.c_str(), XCB_ATOM_STRING, 4711, false}};
    for (const auto& row : rows) {
        TestWindow window(desktop, {100, 100, 200, 100});
        EXPECT_TRUE(run("xprop -f WM_CLIENT_MACHINE 8s -set WM_CLIENT_MACHINE " + std::string(row.machine) + " -id " +
                        std::to_string(window.id())));
        window.set("_NET_WM_PID", row.type, {row.number}).show();
        const auto process = actions.frontmost().value_or(0);
        EXPECT_TRUE(row.isProcess ? process == 4711 : process < 0) << process << ' ' << row.machine;
    }
    const auto connection = TestWindow::connect(desktop);
    TestWindow first(desktop, {100, 100, 200, 100}, connection);
    first.show();
    const auto process = actions.frontmost();
    EXPECT_LT(process.value_or(0), 0) << "names no process";
    TestWindow second(desktop, {150, 150, 200, 100}, connection);
    second.show();
    EXPECT_EQ(actions.frontmost(), process) << "the same client";
    TestWindow stranger(desktop, {150, 150, 200, 100});
    stranger.show();
    EXPECT_NE(actions.frontmost(), process) << "another client";
}

}  // namespace
}  // namespace kinesta::testing
