#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "desktop/harness/DesktopActions.h"
#include "desktop/harness/TestWindow.h"

namespace kinesta::testing {
namespace {

using Words = std::vector<std::string>;
const Words kClose{"close"};

struct WindowClosing : ::testing::Test {
    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    DesktopActions actions;
};

TEST_F(WindowClosing, ClosesEditorsAndLeavesSaveDialogsToThePerson) {
    for (const Words& command : {Words{"mousepad", "--disable-server"}, {"featherpad", "--standalone"}}) {
        const auto unchanged = desktop.start(command);
        ASSERT_NE(desktop.awaitWindowOf(unchanged->pid()), 0U) << command[0];
        EXPECT_TRUE(actions.closes()) << command[0];
        EXPECT_TRUE(unchanged->waitForEnd()) << command[0];
        const auto program = desktop.start(command);
        const xcb_window_t editor = desktop.awaitWindowOf(program->pid());
        ASSERT_NE(editor, 0U) << command[0];
        desktop.run({"xdotool", "type", "not saved"});
        ASSERT_TRUE(actions.closes());
        const xcb_window_t dialog = desktop.awaitWindowOf(program->pid(), editor);
        ASSERT_NE(dialog, 0U) << command[0] << " does not ask";
        EXPECT_FALSE(actions.closes()) << command[0] << ": the dialog is in front";
        desktop.request(editor, "_NET_ACTIVE_WINDOW", {2});
        EXPECT_FALSE(actions.closes()) << command[0] << ": its owner is in front";
        desktop.letWindowManagerCatchUp(editor);
        EXPECT_TRUE(desktop.isManaged(dialog)) << command[0];
        program->signal(SIGKILL);
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
            dialog.setWindow("WM_TRANSIENT_FOR", row.owner);
        dialog.show();
        EXPECT_FALSE(actions.closes()) << row.description << ": the dialog is in front";
        EXPECT_EQ(dialog.eventsAfterWindowManager(), Words{}) << row.description;
        // Openbox gives the focus to the dialog; other window managers do not.
        desktop.pretendActive(editor.id());
        EXPECT_EQ(actions.closes(), !row.holdsBack) << row.description << ": its owner is in front";
        EXPECT_EQ(editor.eventsAfterWindowManager(), row.holdsBack ? Words{} : kClose) << row.description;
    }
    TestWindow find(desktop, {200, 200, 100, 50}, connection);
    find.setWindow("WM_TRANSIENT_FOR", editor.id()).show();
    EXPECT_TRUE(actions.closes()) << "not modal";
    EXPECT_EQ(find.next(), "close");
}

TEST_F(WindowClosing, LeavesSpecialWindowsAlone) {
    TestWindow window(desktop, {100, 100, 300, 200});
    window.setProcess(getpid()).show();  // our own windows follow the same rules
    EXPECT_TRUE(actions.closes());
    EXPECT_EQ(window.next(), "close");
    for (const char* type : {"DESKTOP", "DOCK", "TOOLBAR", "MENU", "UTILITY", "SPLASH"}) {
        for (const pid_t process : {getppid(), getpid()}) {
            ASSERT_TRUE(eventually([&] { return desktop.active() == window.id(); }));
            TestWindow other(desktop, {500, 100, 200, 100});
            // The first type is unknown to Kinesta and must be ignored.
            other.setAtoms("_NET_WM_WINDOW_TYPE",
                           {"_KDE_NET_WM_WINDOW_TYPE_OVERRIDE", std::string("_NET_WM_WINDOW_TYPE_") + type});
            other.setProcess(process).show(false);
            desktop.activate(other.id());
            EXPECT_FALSE(actions.closes()) << type;
            EXPECT_EQ(other.eventsAfterWindowManager(), Words{}) << type;
        }
    }
    ASSERT_TRUE(eventually([&] { return desktop.active() == window.id(); }));
    TestWindow stubborn(desktop, {500, 300, 200, 100});
    stubborn.show();
    desktop.letWindowManagerCatchUp(window.id());  // openbox also sets the allowed actions
    for (const Words& allowed : {Words{"_NET_WM_ACTION_MOVE"}, {}}) {
        stubborn.setAtoms("_NET_WM_ALLOWED_ACTIONS", allowed).send();
        EXPECT_FALSE(actions.closes());
    }
    EXPECT_EQ(stubborn.eventsAfterWindowManager(), Words{});
    xcb_delete_property(desktop.connection(), stubborn.id(), desktop.atom("_NET_WM_ALLOWED_ACTIONS"));
    ASSERT_TRUE(desktop.property(stubborn.id(), "_NET_WM_ALLOWED_ACTIONS").empty());
    EXPECT_TRUE(actions.closes()) << "all is allowed where nothing is listed";
    EXPECT_EQ(stubborn.next(), "close");

    desktop.minimize(window.id());
    desktop.pretendActive(window.id());
    EXPECT_FALSE(actions.closes()) << "minimized";
    EXPECT_EQ(window.eventsAfterWindowManager(), Words{});
}

TEST_F(WindowClosing, ClosesNothingOnceThePersonHasGoneElsewhere) {
    const auto connection = TestWindow::connect(desktop);
    TestWindow first(desktop, {100, 100, 300, 200}, connection);
    TestWindow sibling(desktop, {300, 300, 300, 200}, connection);
    TestWindow stranger(desktop, {600, 100, 300, 200});
    for (TestWindow* each : {&sibling, &stranger, &first})
        each->show();
    for (TestWindow* other : {&stranger, &sibling}) {
        desktop.activate(first.id());
        EXPECT_FALSE(actions.closes([&] { desktop.activate(other->id()); }));
        EXPECT_EQ(first.eventsAfterWindowManager(), Words{});
        EXPECT_EQ(other->eventsAfterWindowManager(), Words{});
    }
    desktop.activate(first.id());
    const auto vanishes = [&] {
        xcb_destroy_window(connection.get(), first.id());
        xcb_flush(connection.get());
        EXPECT_TRUE(eventually([&] { return !desktop.isManaged(first.id()); }));
    };
    EXPECT_FALSE(actions.closes(vanishes)) << "it went by itself";
    EXPECT_EQ(sibling.eventsAfterWindowManager(), Words{});
    EXPECT_EQ(stranger.eventsAfterWindowManager(), Words{});
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
        const auto terminal = desktop.start({"xterm"});
        ASSERT_NE(desktop.awaitWindowOf(terminal->pid()), 0U);
        EXPECT_EQ(actions.frontmost(), terminal->pid());
    }
    std::string machine(256, '\0');
    ASSERT_EQ(gethostname(machine.data(), machine.size() - 1), 0);
    machine.resize(machine.find('\0'));
    const struct {
        std::string machine;
        xcb_atom_t type;
        std::int64_t number;
        bool isProcess;
    } rows[] = {{machine, XCB_ATOM_CARDINAL, 4711, true},
                {"elsewhere", XCB_ATOM_CARDINAL, 4711, false},
                {machine, XCB_ATOM_CARDINAL, 0, false},
                {machine, XCB_ATOM_STRING, 4711, false}};
    for (const auto& row : rows) {
        TestWindow window(desktop, {100, 100, 200, 100});
        window.setMachine(row.machine).setProcess(row.number, row.type).show();
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
