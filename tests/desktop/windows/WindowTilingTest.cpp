#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "desktop/harness/DesktopActions.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

using Command = WindowTilingMenuCommand;

constexpr const char* kHorizontally = "_NET_WM_STATE_MAXIMIZED_HORZ";
constexpr const char* kVertically = "_NET_WM_STATE_MAXIMIZED_VERT";
constexpr WindowRectangle kLeft{0, 0, 640, 800};
constexpr WindowRectangle kRight{640, 0, 640, 800};

/// Waits until a window's frame is at this place, each edge within `tolerance` pixels.
::testing::AssertionResult isAt(const TestDesktop& desktop, xcb_window_t window, const WindowRectangle& expected,
                                int tolerance = 0) {
    const auto isNear = [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; };
    WindowRectangle frame;
    const auto isThere = [&] {
        frame = desktop.frame(window);
        return isNear(frame.x, expected.x) && isNear(frame.y, expected.y) && isNear(frame.right(), expected.right()) &&
               isNear(frame.bottom(), expected.bottom());
    };
    if (!eventually(isThere, std::chrono::seconds(5)))
        return ::testing::AssertionFailure() << frame.width << 'x' << frame.height << '+' << frame.x << '+' << frame.y;
    if (desktop.windowManager)
        desktop.letWindowManagerCatchUp();  // the window in the frame moves after it
    return ::testing::AssertionSuccess();
}

struct WindowTiling : DesktopActionsTest {
    auto isAt(xcb_window_t window, const WindowRectangle& expected, int tolerance = 0) {
        return testing::isAt(desktop, window, expected, tolerance);
    }
};

TEST_F(WindowTiling, TilesEditorsAndRemembersThePlaceThatThePersonChose) {
    const ChildProcess program("mousepad --disable-server");
    const xcb_window_t editor = desktop.awaitWindowOf(program);
    const auto before = desktop.frame(editor);
    for (const auto& [command, expected] : {std::pair{Command::right, kRight},
                                            {Command::topThreeUp, {0, 0, 1280, 400}},
                                            {Command::center, {0, 200, 1280, 400}},
                                            {Command::untile, before},  // from before the first of them
                                            {Command::untile, before},  // posts no key instead
                                            {Command::left, kLeft}}) {
        EXPECT_TRUE(actions.tiles(command));
        EXPECT_TRUE(isAt(editor, expected)) << rawValue(command);
    }
    constexpr std::uint32_t kStaticWithAll = 10 | 0xF << 8;
    desktop.request(editor, "_NET_MOVERESIZE_WINDOW", {kStaticWithAll, 600, 300, 520, 440});
    ASSERT_TRUE(eventually([&] { return desktop.client(editor) == WindowRectangle{600, 300, 520, 440}; }));
    const auto chosen = desktop.frame(editor);
    EXPECT_TRUE(actions.tiles(Command::right));
    EXPECT_TRUE(isAt(editor, kRight));
    EXPECT_TRUE(actions.tiles(Command::untile));
    EXPECT_TRUE(isAt(editor, chosen));
    // A record of a monitor that is gone, or an invalid one, does not move the window off the screen.
    for (const std::vector<std::int64_t>& record :
         {std::vector<std::int64_t>{3000, 100, 500, 400, 0, 0, 640, 800, 0}, {1, 2, 3}}) {
        desktop.set(editor, "_KINESTA_TILING_RECORD", XCB_ATOM_CARDINAL, record);
        EXPECT_TRUE(actions.tiles(Command::untile));
        EXPECT_TRUE(isAt(editor, {390, 200, 500, 400}));
    }
}

TEST_F(WindowTiling, TilesTerminalsInWholeCellsEvenIfTheyOrTheWindowManagerHang) {
    constexpr int kCell = 26;
    const ChildProcess first("xterm -geometry 40x10+0+50");
    const xcb_window_t lower = desktop.awaitWindowOf(first);
    ChildProcess second("xterm -geometry 40x10+50+50");
    const xcb_window_t upper = desktop.awaitWindowOf(second);
    EXPECT_TRUE(actions.tiles(Command::rightAndLeft));
    EXPECT_TRUE(isAt(upper, kRight, kCell));
    EXPECT_TRUE(isAt(lower, kLeft, kCell));
    for (const xcb_window_t terminal : {lower, upper})
        EXPECT_EQ(desktop.frame(terminal).intersection(kWholeScreen), desktop.frame(terminal));
    EXPECT_TRUE(actions.tiles(Command::bottom)) << "cells are no sign that a person has resized it";
    EXPECT_TRUE(isAt(upper, {0, 400, 1280, 400}, kCell));
    EXPECT_TRUE(actions.tiles(Command::untile));
    EXPECT_TRUE(eventually([&] { return desktop.client(upper).height < 200; }));
    EXPECT_EQ(desktop.frame(upper).x, 50);
    EXPECT_EQ(desktop.frame(upper).y, 50);
    for (ChildProcess* hanging : {&second, &*desktop.windowManager}) {
        desktop.addState(upper, kHorizontally, kVertically);
        hanging->signal(SIGSTOP);
        const auto began = std::chrono::steady_clock::now();
        EXPECT_TRUE(actions.tiles(Command::left));
        EXPECT_TRUE(actions.closes());
        EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(1));
        if (hanging == &second) {
            EXPECT_TRUE(isAt(upper, kLeft, kCell));
        }
    }
    desktop.windowManager->signal(SIGCONT);
    second.signal(SIGKILL);
}

TEST_F(WindowTiling, ArrangesTheNextWindowsOfTheSameMonitorAndDesktop) {
    EXPECT_TRUE(run("xrandr --setmonitor L 640/170x800/210+0+0 screen --setmonitor R 640/170x800/210+640+0 none"));
    TestWindow panel(desktop, {0, 775, 640, 25});
    panel.setType("DOCK");
    panel.set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 0, 0, 25, 0, 0, 0, 0, 0, 0, 0, 639}).show(false);
    TestWindow second(desktop, {720, 80, 200, 150});
    TestWindow onLeft(desktop, {100, 100, 200, 150});
    TestWindow minimized(desktop, {800, 100, 200, 150});
    TestWindow elsewhere(desktop, {900, 100, 200, 150});
    TestWindow active(desktop, {740, 110, 200, 150});
    for (TestWindow* each : {&second, &onLeft, &minimized})
        each->show();
    const auto beforeMinimizing = desktop.frame(minimized.id());
    desktop.minimize(minimized.id());
    elsewhere.show();
    desktop.request(elsewhere.id(), "_NET_WM_DESKTOP", {1, 2});
    active.show();
    const auto bystanders = [&] { return std::pair(desktop.frame(onLeft.id()), desktop.frame(elsewhere.id())); };
    const auto before = bystanders();
    EXPECT_TRUE(actions.tiles(Command::leftAndRight));
    EXPECT_TRUE(isAt(active.id(), {640, 0, 320, 800}));
    EXPECT_TRUE(isAt(second.id(), {960, 0, 320, 800}));
    const auto isBelow = [&](const TestWindow& lower, const TestWindow& upper) {
        const auto all = desktop.stacking();
        return std::ranges::find(all, lower.id()) < std::ranges::find(all, upper.id());
    };
    EXPECT_TRUE(eventually([&] { return isBelow(onLeft, second); })) << "still behind a bystander";
    EXPECT_TRUE(eventually([&] { return isBelow(second, active); }));
    EXPECT_EQ(bystanders(), before);

    desktop.activate(onLeft.id());
    EXPECT_TRUE(actions.tiles(Command::bottom));
    EXPECT_TRUE(isAt(onLeft.id(), {0, 387, 640, 388})) << "above the panel";
    // Some desktops publish the work area of each monitor.
    desktop.set(desktop.root(), "_GTK_WORKAREAS_D0", XCB_ATOM_CARDINAL, {0, 40, 640, 700, 640, 0, 640, 800});
    EXPECT_TRUE(actions.tiles(Command::fill));
    EXPECT_TRUE(isAt(onLeft.id(), {0, 40, 640, 700}));
    desktop.activate(minimized.id());
    EXPECT_TRUE(isAt(minimized.id(), beforeMinimizing));
}

TEST_F(WindowTiling, EndsMaximizedAndFullscreenAndReturnsToThem) {
    TestWindow other(desktop, {50, 50, 300, 200});
    TestWindow window(desktop, {200, 150, 400, 300});
    other.setSizes({1, 1}, {32767, 32767}, XCB_GRAVITY_STATIC).show();
    window.show();
    const auto before = desktop.frame(window.id());
    const auto otherBefore = desktop.frame(other.id());
    const std::pair<std::string, std::string> rows[] = {
        {kHorizontally, kVertically}, {kHorizontally, ""}, {"_NET_WM_STATE_FULLSCREEN", ""}};
    for (const auto& [state, second] : rows) {
        const auto endState = [&, first = desktop.atom(state),
                               last = second.empty() ? 0 : desktop.atom(second)](xcb_window_t id) {
            desktop.request(id, "_NET_WM_STATE", {0, first, last, 2});
        };
        desktop.addState(other.id(), state, second);
        desktop.activate(window.id());
        desktop.addState(window.id(), state, second);
        const auto zoomed = desktop.frame(window.id());
        EXPECT_TRUE(actions.tiles(Command::leftAndRight));
        EXPECT_TRUE(isAt(window.id(), kLeft)) << state;
        EXPECT_TRUE(isAt(other.id(), kRight)) << state;
        EXPECT_FALSE(desktop.hasState(window.id(), state) || desktop.hasState(other.id(), state));
        EXPECT_TRUE(actions.tiles(Command::untile));
        EXPECT_TRUE(isAt(window.id(), zoomed)) << state;
        EXPECT_TRUE(desktop.hasState(window.id(), state));
        endState(window.id());
        EXPECT_TRUE(isAt(window.id(), before)) << state << ": what it had been maximized from";
        desktop.activate(other.id());
        EXPECT_TRUE(actions.tiles(Command::untile));
        EXPECT_TRUE(eventually([&, &state = state] { return desktop.hasState(other.id(), state); }));
        endState(other.id());
        EXPECT_TRUE(isAt(other.id(), otherBefore));
    }
    desktop.activate(window.id());
    desktop.addState(window.id(), kHorizontally, kVertically);
    EXPECT_TRUE(actions.tiles(Command::center));
    EXPECT_TRUE(isAt(window.id(), {(1280 - before.width) / 2, (800 - before.height) / 2, before.width, before.height}))
        << "in the size that it was maximized from";
}

TEST_F(WindowTiling, KeepsWindowsWithSizeLimitsOnTheScreen) {
    TestWindow wide(desktop, {50, 50, 800, 200});
    wide.setProcess(getpid());  // our own windows are tiled like any other
    wide.setSizes({800, 100}, {32767, 32767}).show();
    EXPECT_TRUE(actions.tiles(Command::right));
    EXPECT_TRUE(eventually([&] { return desktop.frame(wide.id()).height == 800; }));
    EXPECT_EQ(desktop.frame(wide.id()).right(), 1280);
    EXPECT_EQ(desktop.client(wide.id()).width, 800);
    TestWindow fixed(desktop, {50, 50, 300, 200});
    fixed.setSizes({300, 200}, {300, 200}).show();
    const auto size = desktop.frame(fixed.id()).size();
    EXPECT_FALSE(actions.tiles(Command::fill));
    EXPECT_TRUE(actions.tiles(Command::center));
    EXPECT_TRUE(isAt(fixed.id(), {(1280 - size.width) / 2, (800 - size.height) / 2, size.width, size.height}));
    // The window includes its shadows.
    TestWindow shadowed(desktop, {50, 50, 300, 200});
    shadowed.set("_MOTIF_WM_HINTS", desktop.atom("_MOTIF_WM_HINTS"), {2, 0, 0, 0, 0});
    shadowed.set("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, {10, 12, 8, 14}).show();
    EXPECT_TRUE(actions.tiles(Command::right));
    EXPECT_TRUE(eventually([&] { return desktop.client(shadowed.id()) == WindowRectangle{630, -8, 662, 822}; }));
}

TEST(WindowTilingOnI3, TakesWindowsOutOfTheLayoutAndGivesThemBack) {
    TestDesktop desktop;
    const std::string config = folderOf("HOME") / "i3";
    writeText(config, "# i3 config file (v4)\nfont pango:DejaVu Sans 8\n");
    ChildProcess i3("i3 -c " + config);
    ASSERT_TRUE(eventually([&] { return !desktop.property(desktop.root(), "_NET_SUPPORTING_WM_CHECK").empty(); }));
    DesktopActions actions;
    TestWindow other(desktop, {50, 50, 300, 200});
    TestWindow window(desktop, {50, 50, 300, 200});
    for (TestWindow* each : {&other, &window}) {
        each->show();
        EXPECT_TRUE(desktop.becomesActive(each->id()));
    }
    EXPECT_TRUE(isAt(desktop, window.id(), kRight)) << "in the layout";
    EXPECT_TRUE(actions.tiles(Command::left));
    EXPECT_TRUE(isAt(desktop, window.id(), kLeft));
    EXPECT_TRUE(actions.tiles(Command::topAndBottom));
    EXPECT_TRUE(isAt(desktop, window.id(), {0, 0, 1280, 400}));
    EXPECT_TRUE(isAt(desktop, other.id(), {0, 400, 1280, 400}));
    EXPECT_TRUE(actions.tiles(Command::untile));
    EXPECT_TRUE(isAt(desktop, window.id(), kWholeScreen)) << "alone in the layout";
    EXPECT_TRUE(actions.closes());
    EXPECT_EQ(window.next(), "close");
    i3.end(SIGKILL);
    EXPECT_FALSE(actions.tiles(Command::left)) << "what it left on the root window is no window manager";
    EXPECT_FALSE(actions.closes());
}

}  // namespace
}  // namespace kinesta::testing
