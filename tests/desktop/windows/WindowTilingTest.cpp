#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowPorts.h"
#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {
namespace {

using Command = WindowTilingMenuCommand;

struct WindowTilingTest : ::testing::Test {
    TestDesktop desktop{{.hasWindowManager = true, .hasSessionBus = true}};
    WindowWatch watch{desktop};
    WindowPorts ports;

    /// Waits until a window's frame is there, each edge within `tolerance` pixels.
    ::testing::AssertionResult isAt(xcb_window_t window, const WindowRectangle& expected, int tolerance = 0) {
        const auto isNear = [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; };
        WindowRectangle frame;
        const auto isThere = [&] {
            frame = watch.frame(window);
            // A window manager moves the frame and what is in it one after the other; we look at the latter.
            const auto seen = ports.desktop.window(window);
            return seen && seen->frame == frame && isNear(frame.x, expected.x) && isNear(frame.y, expected.y) &&
                   isNear(frame.right(), expected.right()) && isNear(frame.bottom(), expected.bottom());
        };
        if (watch.await(isThere, std::chrono::seconds(5)))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << frame.width << 'x' << frame.height << '+' << frame.x << '+' << frame.y;
    }
};

TEST_F(WindowTilingTest, TilesARealEditorAndReturnsItToItsPreviousSize) {
    const auto program = desktop.run({"mousepad", "--disable-server"});
    const xcb_window_t editor = watch.awaitWindowOf(program->pid());
    ASSERT_NE(editor, 0U);
    const auto before = watch.frame(editor);
    const std::pair<Command, WindowRectangle> rows[] = {
        {Command::left, {0, 0, 640, 800}},        {Command::right, {640, 0, 640, 800}},
        {Command::top, {0, 0, 1280, 400}},        {Command::bottom, {0, 400, 1280, 400}},
        {Command::topThreeUp, {0, 0, 1280, 400}}, {Command::center, {0, 200, 1280, 400}},
        {Command::fill, {0, 0, 1280, 800}},
    };
    for (const auto& [command, expected] : rows) {
        EXPECT_TRUE(ports.tiles(command));
        EXPECT_TRUE(isAt(editor, expected)) << rawValue(command);
    }
    EXPECT_TRUE(ports.tiles(Command::untile));
    EXPECT_TRUE(isAt(editor, before)) << "from before the first of them";
    EXPECT_TRUE(ports.tiles(Command::untile)) << "there is nothing to return to, and no key is to be posted instead";
    watch.letWindowManagerCatchUp(editor);
    EXPECT_EQ(watch.frame(editor), before);
}

TEST_F(WindowTilingTest, TilesTerminalsInWholeCells) {
    std::vector<std::unique_ptr<ChildProcess>> programs;
    std::vector<xcb_window_t> terminals;
    for (int i = 0; i < 3; ++i) {
        programs.push_back(desktop.run({"xterm", "-geometry", "40x10+" + std::to_string(50 * i) + "+50"}));
        terminals.push_back(watch.awaitWindowOf(programs.back()->pid()));
        ASSERT_NE(terminals.back(), 0U);
    }
    constexpr int kCell = 26;
    EXPECT_TRUE(ports.tiles(Command::rightThreeUp));
    EXPECT_TRUE(isAt(terminals[2], {640, 0, 640, 800}, kCell));
    EXPECT_TRUE(isAt(terminals[1], {0, 0, 640, 400}, kCell));
    EXPECT_TRUE(isAt(terminals[0], {0, 400, 640, 400}, kCell));
    for (const xcb_window_t terminal : terminals) {
        const auto frame = watch.frame(terminal);
        EXPECT_EQ(frame.intersection({0, 0, 1280, 800}), frame) << "out of the screen";
    }
    // A terminal that is tiled stays tiled: cells are no sign that a person has resized it.
    EXPECT_TRUE(ports.tiles(Command::bottom));
    EXPECT_TRUE(isAt(terminals[2], {0, 400, 1280, 400}, kCell));
    EXPECT_TRUE(ports.tiles(Command::untile));
    EXPECT_TRUE(watch.await([&] { return watch.client(terminals[2]).height < 200; }));
    EXPECT_EQ(watch.frame(terminals[2]).x, 100);
    EXPECT_EQ(watch.frame(terminals[2]).y, 50);
}

TEST_F(WindowTilingTest, ArrangesTheNextWindowsOfTheSameMonitorAndDesktop) {
    ASSERT_TRUE(desktop.run({"xrandr", "--setmonitor", "L", "640/170x800/210+0+0", "screen"})->waitForEnd());
    ASSERT_TRUE(desktop.run({"xrandr", "--setmonitor", "R", "640/170x800/210+640+0", "none"})->waitForEnd());
    ClientWindow dock(desktop, watch, {1240, 0, 40, 800});
    dock.setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DOCK"});
    dock.set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 40, 0, 0, 0, 0, 0, 799, 0, 0, 0, 0}).show(false);
    ClientWindow panel(desktop, watch, {0, 775, 640, 25});
    panel.setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DOCK"});
    panel.set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 0, 0, 25, 0, 0, 0, 0, 0, 0, 0, 639}).show(false);

    ClientWindow third(desktop, watch, {700, 50, 200, 150});
    ClientWindow second(desktop, watch, {720, 80, 200, 150});
    ClientWindow onLeft(desktop, watch, {100, 100, 200, 150});
    ClientWindow minimized(desktop, watch, {800, 100, 200, 150});
    ClientWindow fixed(desktop, watch, {800, 100, 200, 150});
    ClientWindow palette(desktop, watch, {900, 100, 200, 150});
    ClientWindow elsewhere(desktop, watch, {900, 100, 200, 150});
    ClientWindow active(desktop, watch, {740, 110, 200, 150});
    for (ClientWindow* each : {&third, &second, &onLeft, &minimized})
        each->show();
    const auto beforeMinimizing = watch.frame(minimized.window());
    watch.minimize(minimized.window());
    fixed.setFixedSize().show();
    palette.setAtoms("_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_UTILITY"}).show(false);
    elsewhere.show();
    watch.tell(elsewhere.window(), "_NET_WM_DESKTOP", {1, 2});
    active.show();
    const auto bystanders = [&] {
        std::vector<WindowRectangle> frames;
        for (const ClientWindow* each : {&onLeft, &fixed, &palette, &elsewhere})
            frames.push_back(watch.frame(each->window()));
        return frames;
    };
    const auto before = bystanders();

    EXPECT_TRUE(ports.tiles(Command::leftAndRight));
    EXPECT_TRUE(isAt(active.window(), {640, 0, 300, 800}));
    EXPECT_TRUE(isAt(second.window(), {940, 0, 300, 800}));
    const auto height = [&](const ClientWindow& window) {
        const auto stacking = watch.stacking();
        return std::find(stacking.begin(), stacking.end(), window.window()) - stacking.begin();
    };
    EXPECT_TRUE(watch.await([&] { return height(second) > height(fixed); })) << "still behind a bystander";
    EXPECT_TRUE(watch.await([&] { return height(active) > height(second); }));

    EXPECT_TRUE(ports.tiles(Command::bottomThreeUp));
    EXPECT_TRUE(isAt(active.window(), {640, 400, 600, 400}));
    EXPECT_TRUE(isAt(second.window(), {640, 0, 300, 400}));
    EXPECT_TRUE(isAt(third.window(), {940, 0, 300, 400}));

    EXPECT_EQ(bystanders(), before);
    watch.activate(onLeft.window());
    EXPECT_TRUE(ports.tiles(Command::topAndBottom));
    EXPECT_TRUE(isAt(onLeft.window(), {0, 0, 640, 387})) << "alone on its monitor, above the panel";
    EXPECT_TRUE(ports.tiles(Command::bottom));
    EXPECT_TRUE(isAt(onLeft.window(), {0, 387, 640, 388}));
    watch.activate(minimized.window());
    EXPECT_TRUE(isAt(minimized.window(), beforeMinimizing));
}

TEST_F(WindowTilingTest, EndsMaximizedAndFullscreenFirstAndReturnsToThem) {
    ClientWindow other(desktop, watch, {50, 50, 300, 200});
    ClientWindow window(desktop, watch, {200, 150, 400, 300});
    other.setStaticGravity().show();
    window.show();
    const auto before = watch.frame(window.window());
    const auto otherBefore = watch.frame(other.window());
    const std::string maximizedHorizontally = "_NET_WM_STATE_MAXIMIZED_HORZ";
    const std::string maximizedVertically = "_NET_WM_STATE_MAXIMIZED_VERT";
    const std::pair<std::string, std::string> rows[] = {
        {maximizedHorizontally, maximizedVertically}, {maximizedHorizontally, ""}, {"_NET_WM_STATE_FULLSCREEN", ""}};
    for (const auto& [state, second] : rows) {
        const auto endState = [&, first = desktop.atom(state),
                               last = second.empty() ? 0 : desktop.atom(second)](const ClientWindow& of) {
            watch.tell(of.window(), "_NET_WM_STATE", {0, first, last, 2});
        };
        watch.addState(other.window(), state, second);
        watch.activate(window.window());
        watch.addState(window.window(), state, second);
        const auto zoomed = watch.frame(window.window());
        EXPECT_TRUE(ports.tiles(Command::leftAndRight));
        EXPECT_TRUE(isAt(window.window(), {0, 0, 640, 800})) << state;
        EXPECT_TRUE(isAt(other.window(), {640, 0, 640, 800})) << state;
        EXPECT_FALSE(watch.hasState(window.window(), state) || watch.hasState(other.window(), state));
        EXPECT_TRUE(ports.tiles(Command::untile));
        EXPECT_TRUE(isAt(window.window(), zoomed)) << state;
        EXPECT_TRUE(watch.hasState(window.window(), state));
        endState(window);
        EXPECT_TRUE(isAt(window.window(), before)) << state << ": what it had been maximized from";
        watch.activate(other.window());
        EXPECT_TRUE(ports.tiles(Command::untile));
        EXPECT_TRUE(watch.await([&, &state = state] { return watch.hasState(other.window(), state); }));
        endState(other);
        EXPECT_TRUE(isAt(other.window(), otherBefore));
    }
    watch.activate(window.window());
    watch.addState(window.window(), maximizedHorizontally, maximizedVertically);
    EXPECT_TRUE(ports.tiles(Command::center));
    EXPECT_TRUE(
        isAt(window.window(), {(1280 - before.width) / 2, (800 - before.height) / 2, before.width, before.height}))
        << "centered in the size that it was maximized from";
}

TEST_F(WindowTilingTest, RemembersAnewOnceThePersonHasMovedTheWindow) {
    ClientWindow window(desktop, watch, {200, 150, 400, 300});
    // One of its own, which is tiled like any other.
    window.set("_NET_WM_PID", XCB_ATOM_CARDINAL, {static_cast<std::uint32_t>(getpid())}).show();
    EXPECT_TRUE(ports.tiles(Command::left));
    EXPECT_TRUE(isAt(window.window(), {0, 0, 640, 800}));
    constexpr std::uint32_t kStaticWithAll = 10 | 0xF << 8;
    watch.tell(window.window(), "_NET_MOVERESIZE_WINDOW", {kStaticWithAll, 600, 300, 320, 240});
    ASSERT_TRUE(watch.await([&] { return watch.client(window.window()) == WindowRectangle{600, 300, 320, 240}; }));
    const auto chosen = watch.frame(window.window());
    EXPECT_TRUE(ports.tiles(Command::right));
    EXPECT_TRUE(isAt(window.window(), {640, 0, 640, 800}));
    EXPECT_TRUE(ports.tiles(Command::untile));
    EXPECT_TRUE(isAt(window.window(), chosen));

    // A window that remembers a monitor which is gone, or nonsense that someone else wrote, does not get lost.
    const auto record = [&](std::vector<std::uint32_t> numbers) {
        window.set("_KINESTA_TILING_RECORD", XCB_ATOM_CARDINAL, std::move(numbers)).send();
    };
    record({3000, 100, 500, 400, 0, 0, 640, 800, 0});
    EXPECT_TRUE(ports.tiles(Command::untile));
    EXPECT_TRUE(isAt(window.window(), {390, 200, 500, 400}));
    record({1, 2, 3});
    EXPECT_TRUE(ports.tiles(Command::untile));
    watch.letWindowManagerCatchUp(window.window());
    EXPECT_EQ(watch.frame(window.window()), (WindowRectangle{390, 200, 500, 400}));
}

TEST_F(WindowTilingTest, KeepsWindowsInTheWorkAreaThatDoNotTakeTheirPlace) {
    ClientWindow wide(desktop, watch, {50, 50, 800, 200});
    wide.setMinimum({800, 100}).show();
    EXPECT_TRUE(ports.tiles(Command::right));
    EXPECT_TRUE(watch.await([&] { return watch.frame(wide.window()).height == 800; }));
    EXPECT_EQ(watch.frame(wide.window()).right(), 1280);
    EXPECT_EQ(watch.client(wide.window()).width, 800);

    ClientWindow fixed(desktop, watch, {50, 50, 300, 200});
    fixed.setFixedSize().show();
    const auto size = watch.frame(fixed.window()).size();
    EXPECT_FALSE(ports.tiles(Command::fill)) << "it cannot be";
    EXPECT_TRUE(ports.tiles(Command::center));
    EXPECT_TRUE(isAt(fixed.window(), {(1280 - size.width) / 2, (800 - size.height) / 2, size.width, size.height}));

    // It puts shadows around itself, within the window that the desktop knows.
    ClientWindow shadowed(desktop, watch, {50, 50, 300, 200});
    shadowed.set("_MOTIF_WM_HINTS", desktop.atom("_MOTIF_WM_HINTS"), {2, 0, 0, 0, 0});
    shadowed.set("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {10, 12, 8, 14}).show();
    EXPECT_TRUE(ports.tiles(Command::right));
    EXPECT_TRUE(watch.await([&] { return watch.client(shadowed.window()) == WindowRectangle{630, -8, 662, 822}; }));
}

TEST_F(WindowTilingTest, TouchesNothingOnceThePersonHasGoneElsewhere) {
    const auto connection = ClientWindow::connect(desktop);
    ClientWindow first(desktop, watch, {100, 100, 300, 200}, connection);
    ClientWindow stranger(desktop, watch, {600, 100, 300, 200});
    stranger.show();
    first.show();
    const auto before = watch.frame(first.window());
    const auto strangerBefore = watch.frame(stranger.window());
    EXPECT_FALSE(ports.tiles(Command::fill, [&] { watch.activate(stranger.window()); }));
    watch.minimize(first.window());
    watch.minimize(stranger.window());
    watch.pretendActive(first.window());
    EXPECT_FALSE(ports.tiles(Command::fill)) << "minimized";
    for (const ClientWindow* each : {&first, &stranger})
        watch.activate(each->window());
    EXPECT_TRUE(isAt(first.window(), before));
    EXPECT_TRUE(isAt(stranger.window(), strangerBefore));
}

TEST_F(WindowTilingTest, IsNotHeldUpByAProgramThatHangs) {
    const auto program = desktop.run({"xterm", "-geometry", "40x10+50+50"});
    const xcb_window_t terminal = watch.awaitWindowOf(program->pid());
    ASSERT_NE(terminal, 0U);
    watch.addState(terminal, "_NET_WM_STATE_MAXIMIZED_HORZ", "_NET_WM_STATE_MAXIMIZED_VERT");
    program->signal(SIGSTOP);
    const auto began = std::chrono::steady_clock::now();
    EXPECT_TRUE(ports.tiles(Command::left));
    EXPECT_TRUE(ports.closes());
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(500));
    EXPECT_TRUE(isAt(terminal, {0, 0, 640, 800}, 26));
    program->signal(SIGCONT);
}

TEST(WindowTilingOnI3, TakesWindowsOutOfTheLayoutAndGivesThemBack) {
    TestDesktop desktop;
    const std::string config = (folderOf("HOME") / "i3").string();
    std::ofstream(config) << "# i3 config file (v4)\nfont pango:DejaVu Sans 8\nbar {\n status_command true\n}\n";
    const auto i3 = desktop.run({"i3", "-c", config});
    WindowWatch watch(desktop);
    WindowPorts ports;
    ASSERT_TRUE(eventually([&] {
        const auto seen = ports.desktop.snapshot();
        return seen && seen->movesWindows && seen->monitors[0].workArea.height < 800;
    })) << "the bar, which is in no list of windows, takes some";
    const WindowRectangle area = ports.desktop.snapshot()->monitors[0].workArea;
    ClientWindow other(desktop, watch, {50, 50, 300, 200});
    ClientWindow window(desktop, watch, {50, 50, 300, 200});
    other.show();
    window.show();
    const auto frame = [&] { return ports.desktop.window(window.window()).value_or(EwmhWindow{}).frame; };
    const auto inLayout = frame();
    EXPECT_EQ(inLayout, (WindowRectangle{640, area.y, 640, area.height}));
    EXPECT_TRUE(ports.tiles(Command::left));
    EXPECT_EQ(frame(), (WindowRectangle{0, area.y, 640, area.height})) << "at once: i3 says when it is done";
    EXPECT_TRUE(ports.tiles(Command::topAndBottom));
    EXPECT_EQ(frame(), (WindowRectangle{0, area.y, 1280, area.height / 2}));
    EXPECT_EQ(ports.desktop.window(other.window())->frame.y, area.y + area.height / 2);
    EXPECT_TRUE(ports.tiles(Command::untile));
    EXPECT_TRUE(ports.desktop.window(window.window())->isInLayout);
    EXPECT_TRUE(ports.closes());
    EXPECT_TRUE(window.awaitCloseRequest());
    i3->signal(SIGKILL);
    ASSERT_TRUE(i3->waitForEnd());
    EXPECT_FALSE(ports.tiles(Command::left)) << "what it left on the root window is no window manager";
    EXPECT_FALSE(ports.closes());
}

}  // namespace
}  // namespace kinesta::testing
