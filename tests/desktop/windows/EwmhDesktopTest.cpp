#include "platform/linux/windows/EwmhDesktop.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <memory>

#include "desktop/harness/ClientWindow.h"
#include "desktop/harness/TestDesktop.h"
#include "desktop/harness/WindowPorts.h"
#include "desktop/harness/WindowWatch.h"

namespace kinesta::testing {
namespace {

constexpr Seconds kPatience = std::chrono::duration<Seconds>(ChildProcess::kPatience).count();

bool answers(EwmhDesktop& desktop, Seconds timeout = EwmhDesktop::kTimeout) {
    return desktop.snapshot(timeout).has_value();
}

Seconds timeOf(const std::function<void()>& work) {
    const auto began = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
}

TEST(EwmhDesktop, KnowsTheProcessInFront) {
    TestDesktop desktop({.hasWindowManager = true});
    WindowWatch watch(desktop);
    X11Connection server;
    EwmhDesktop ewmh(server);
    EXPECT_EQ(ewmh.frontmostApplication(), std::nullopt) << "an empty desktop";
    {
        const auto terminal = desktop.run({"xterm"});
        ASSERT_NE(watch.awaitWindowOf(terminal->pid()), 0U);
        EXPECT_EQ(ewmh.frontmostApplication(), terminal->pid());
    }
    std::array<char, 256> machine{};
    ASSERT_EQ(gethostname(machine.data(), machine.size() - 1), 0);
    const struct {
        const char *description, *machine;
        xcb_atom_t type;
        std::uint32_t number;
        bool isProcess;
    } rows[] = {
        {"its process and this machine", machine.data(), XCB_ATOM_CARDINAL, 4711, true},
        {"another machine", "elsewhere", XCB_ATOM_CARDINAL, 4711, false},
        {"process 0", machine.data(), XCB_ATOM_CARDINAL, 0, false},
        {"nonsense", machine.data(), XCB_ATOM_STRING, 4711, false},
    };
    for (const auto& row : rows) {
        const auto connection = ClientWindow::connect(desktop);
        ClientWindow window(desktop, watch, {100, 100, 200, 100}, connection);
        window.setMachine(row.machine).set("_NET_WM_PID", row.type, {row.number}).show();
        const auto process = ewmh.frontmostApplication();
        ASSERT_TRUE(process.has_value()) << row.description;
        EXPECT_EQ(*process == 4711, row.isProcess) << row.description;
        EXPECT_EQ(*process < 0, !row.isProcess) << row.description;
    }
    const auto connection = ClientWindow::connect(desktop);
    ClientWindow first(desktop, watch, {100, 100, 200, 100}, connection);
    first.show();
    const auto process = ewmh.frontmostApplication();
    EXPECT_LT(process.value_or(0), 0) << "tells no process";
    ClientWindow second(desktop, watch, {150, 150, 200, 100}, connection);
    second.show();
    EXPECT_EQ(ewmh.frontmostApplication(), process) << "the same client";
    ClientWindow stranger(desktop, watch, {150, 150, 200, 100});
    stranger.show();
    EXPECT_NE(ewmh.frontmostApplication(), process) << "another client";
}

TEST(EwmhDesktop, KnowsTheMonitorsAndWhatTheyLeaveToWindows) {
    TestDesktop desktop({.hasWindowManager = true});
    X11Connection server;
    EwmhDesktop ewmh(server);
    const auto monitors = [&] {
        const auto snapshot = ewmh.snapshot(kPatience);
        return snapshot ? snapshot->monitors : std::vector<EwmhMonitor>{};
    };
    ASSERT_TRUE(desktop.run({"xrandr", "--setmonitor", "L", "640/170x800/210+0+0", "screen"})->waitForEnd());
    ASSERT_TRUE(desktop.run({"xrandr", "--setmonitor", "R", "640/170x700/210+640+0", "none"})->waitForEnd());
    const std::array<std::uint32_t, 8> areas{0, 27, 640, 773, 640, 0, 640, 700};
    xcb_change_property(desktop.connection(), XCB_PROP_MODE_REPLACE, desktop.root(), desktop.atom("_GTK_WORKAREAS_D0"),
                        XCB_ATOM_CARDINAL, 32, areas.size(), areas.data());
    ASSERT_TRUE(desktop.property(desktop.root(), "_GTK_WORKAREAS_D0"));
    EXPECT_EQ(monitors(), (std::vector<EwmhMonitor>{{{0, 0, 640, 800}, {0, 27, 640, 773}},
                                                    {{640, 0, 640, 700}, {640, 0, 640, 700}}}));
}

TEST(EwmhDesktop, LivesThroughWindowsThatVanish) {
    TestDesktop desktop({.hasWindowManager = true});
    WindowWatch watch(desktop);
    WindowPorts ports;
    auto window = std::make_unique<ClientWindow>(desktop, watch, WindowRectangle{100, 100, 200, 100});
    window->show();
    const auto before = ports.desktop.window(window->window());
    ASSERT_TRUE(before.has_value());
    window.reset();
    ASSERT_TRUE(watch.await([&] { return !watch.isManaged(before->id); }));
    EXPECT_EQ(ports.desktop.window(before->id).has_value(), false);
    auto zoomed = *before;
    zoomed.isFullscreen = zoomed.isMaximizedHorizontally = true;
    // It never answers, and what it does not answer is not waited for beyond the limit.
    EXPECT_LT(timeOf([&] { ports.desktop.restore({&zoomed, 1}, 0.05); }), 0.15);
    ports.desktop.place(*before, {0, 0, 100, 100});
    ports.desktop.setTilingRecord(before->id, std::array<std::uint32_t, 1>{1});
    ports.desktop.raise(before->id);
    ports.desktop.flush();
    EXPECT_EQ(ports.desktop.window(before->id).has_value(), false);
    EXPECT_TRUE(ports.desktop.close(before->id)) << "the window manager was asked";
    watch.pretendActive(before->id);
    EXPECT_EQ(ports.desktop.frontmostApplication(), std::nullopt);
    EXPECT_FALSE(ports.closes());
    EXPECT_FALSE(ports.tiles(WindowTilingMenuCommand::fill));
    EXPECT_TRUE(answers(ports.desktop));
}

TEST(EwmhDesktop, RefusesWithoutAServerAndFindsTheNextOne) {
    X11Connection server;
    EwmhDesktop ewmh(server);
    EXPECT_FALSE(answers(ewmh));
    EXPECT_FALSE(ewmh.close(1));
    X11Connection noConnection(":54321");
    EwmhDesktop nowhere(noConnection);
    EXPECT_FALSE(answers(nowhere));
    EwmhWindow window;
    for (int i = 0; i < 2; ++i) {
        TestDesktop desktop;
        EXPECT_TRUE(answers(ewmh, kPatience));
        // Without requests in between, the end of the server is found while one is written, and while one is read.
        desktop.stopServer();
        if (i == 0)
            ewmh.place(window, {0, 0, 1, 1});
        EXPECT_EQ(ewmh.frontmostApplication(), std::nullopt);
        EXPECT_FALSE(answers(ewmh));
        ewmh.place(window, {0, 0, 1, 1});
        ewmh.flush();
    }
    TestDesktop desktop({.hasWindowManager = true});
    EXPECT_TRUE(answers(ewmh, kPatience));
}

TEST(EwmhDesktop, IsNotHeldUpByAServerThatHangs) {
    TestDesktop desktop({.hasWindowManager = true});
    WindowWatch watch(desktop);
    WindowPorts ports;
    ClientWindow window(desktop, watch, {100, 100, 200, 100});
    window.show();
    ASSERT_TRUE(ports.desktop.activeWindow());
    ucred peer{};
    socklen_t size = sizeof peer;
    ASSERT_EQ(getsockopt(xcb_get_file_descriptor(desktop.connection()), SOL_SOCKET, SO_PEERCRED, &peer, &size), 0);
    ASSERT_EQ(kill(peer.pid, SIGSTOP), 0);
    // What is in progress when it begins to hang waits once, and all that follows not at all.
    EXPECT_LT(timeOf([&] { EXPECT_FALSE(ports.closes()); }), 2 * EwmhDesktop::kTimeout);
    EXPECT_LT(timeOf([&] {
                  for (int i = 0; i < 100; ++i) {
                      EXPECT_FALSE(ports.tiles(WindowTilingMenuCommand::fill));
                      EXPECT_FALSE(ports.desktop.snapshot(0.5).has_value());
                      EXPECT_FALSE(ports.desktop.close(window.window()));
                  }
              }),
              1.0);
    X11Connection lateConnection;
    EwmhDesktop late(lateConnection);
    EXPECT_LT(timeOf([&] { EXPECT_FALSE(answers(late, 0.1)); }), 0.3);
    {
        X11Connection forgottenConnection;
        EwmhDesktop forgotten(forgottenConnection);
        EXPECT_FALSE(answers(forgotten, 0));
    }
    ASSERT_EQ(kill(peer.pid, SIGCONT), 0);
    EXPECT_TRUE(eventually([&] { return ports.desktop.activeWindow().has_value(); }));
    EXPECT_TRUE(eventually([&] { return answers(late); }));
    EXPECT_TRUE(ports.closes());
    EXPECT_TRUE(window.awaitCloseRequest());
}

TEST(EwmhDesktop, IsNotHeldUpByAWindowManagerThatHangs) {
    TestDesktop desktop({.hasWindowManager = true});
    WindowWatch watch(desktop);
    WindowPorts ports;
    const auto manager = static_cast<pid_t>(desktop.property(desktop.root(), "_OPENBOX_PID").value_or(0));
    ASSERT_GT(manager, 1);
    ClientWindow window(desktop, watch, {100, 100, 200, 100});
    window.show();
    watch.addState(window.window(), "_NET_WM_STATE_FULLSCREEN");
    ASSERT_EQ(kill(manager, SIGSTOP), 0);
    EXPECT_LT(timeOf([&] { EXPECT_TRUE(ports.tiles(WindowTilingMenuCommand::fill)); }), 0.5);
    EXPECT_LT(timeOf([&] { EXPECT_TRUE(ports.closes()); }), 0.5);
    ASSERT_EQ(kill(manager, SIGKILL), 0);
}

}  // namespace
}  // namespace kinesta::testing
