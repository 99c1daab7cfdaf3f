#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>
#include <cstdlib>
#include <cstring>

#include "desktop/harness/BusServices.h"
#include "desktop/harness/TestDesktop.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "platform/linux/process/FileDescriptor.h"
#include "platform/linux/session/DesktopPermission.h"
#include "platform/linux/session/DesktopSession.h"
#include "platform/linux/windows/EwmhDesktop.h"

namespace kinesta::testing {
namespace {

using Requests = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

/// A desktop on which nothing can be posted, as its X server has gone.
struct Permission : ::testing::Test {
    TestDesktop desktop{{.hasSessionBus = true}};
    X11Connection connection;
    X11Keyboard keyboard{connection};
    X11InputPoster poster{connection, keyboard};
    MessageBus bus;
    DesktopNotifications notifications{bus};
    int asked = 0;
    DesktopPermission permission{poster, notifications, [this] { return "Do this & that " + std::to_string(++asked); }};
};

TEST_F(Permission, IsThereWherePostingWorks) {
    BusServices services;
    EXPECT_TRUE(permission.isTrusted());
    EXPECT_TRUE(permission.prompt());
    desktop.stopServer();
    EXPECT_FALSE(permission.isTrusted());
    EXPECT_FALSE(permission.prompt());
    EXPECT_TRUE(services.waitForRequests(1));
    EXPECT_EQ(services.requests(), Requests{"notify 0 -> 1: Kinesta may not send keys and clicks | Do this & that 1"})
        << "and none while there was permission";
}

TEST_F(Permission, KeepsOneNotificationOnTheScreen) {
    desktop.stopServer();
    permission.prompt();  // to nobody
    BusServices services;
    // Again and again, as a person would who wonders: before and after the answers to the ones before.
    EXPECT_TRUE(eventually([&] {
        permission.prompt();
        return services.requests().size() >= 3;
    }));
    const Requests requests = services.requests();
    for (const std::string& request : requests)
        EXPECT_TRUE(request.find("-> 1:") != std::string::npos) << request;
    EXPECT_TRUE(requests.front().starts_with("notify 0 "));
    EXPECT_TRUE(requests.back().starts_with("notify 1 "));
}

TEST_F(Permission, DoesNotWaitForADesktopThatHangs) {
    desktop.stopServer();
    BusServices services(BusServices::Manner::hanging);
    const auto start = Clock::now();
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(permission.prompt());
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(500)) << "5 ms a prompt are felt by nobody";
    EXPECT_TRUE(services.waitForRequests(1));
    EXPECT_EQ(services.requests().size(), 1U) << "a hundred would appear when it comes round";
}

TEST_F(Permission, DoesNotWaitLongForABusThatHangs) {
    desktop.stopServer();
    desktop.sessionBus().signal(SIGSTOP);
    const auto start = Clock::now();
    EXPECT_FALSE(permission.prompt());
    EXPECT_LT(Clock::now() - start, 2 * MessageBus::kPatience);
    desktop.sessionBus().signal(SIGCONT);
    BusServices services;
    EXPECT_FALSE(permission.prompt());
    EXPECT_TRUE(services.waitForRequests(1));
}

TEST_F(Permission, DoesWithoutABusAndTakesUpWithTheNext) {
    desktop.stopServer();
    EXPECT_FALSE(permission.prompt());
    desktop.stopSessionBus();
    EXPECT_FALSE(permission.prompt());
    EXPECT_EQ(bus.open(), nullptr);
    desktop.startSessionBus();
    BusServices services;
    EXPECT_FALSE(permission.prompt());
    EXPECT_TRUE(services.waitForRequests(1));
    EXPECT_TRUE(services.requests().front().starts_with("notify 0 -> 1:")) << services.requests().front();
}

TEST(DesktopFacts, AreWhatIsThere) {
    TestDesktop desktop({.hasWindowManager = true, .hasSessionBus = true});
    X11Connection connection;
    EwmhDesktop windows(connection);
    MessageBus bus;
    const auto probe = [&] {
        auto seen = DesktopFacts::probe(connection, bus, "/dev/null");
        windows.addTo(seen);
        return seen;
    };
    DesktopFacts facts = probe();
    EXPECT_TRUE(facts.hasX && facts.hasXTest && facts.hasWindowManager && facts.hasSessionBus && facts.hasXdgOpen);
    EXPECT_FALSE(facts.hasWayland);
    EXPECT_EQ(facts.notifications, BusService::absent);
    EXPECT_EQ(facts.portal, BusService::absent);
    EXPECT_TRUE(facts.mayUseUinput) << "stands for a device that may be opened";
    EXPECT_FALSE(DesktopFacts::probe(connection, bus, "/nonexistent").mayUseUinput);
    {
        const BusServices services;
        facts = probe();
        EXPECT_EQ(facts.notifications, BusService::answering);
        EXPECT_EQ(facts.portal, BusService::absent) << "and not started for nothing: there is xdg-open";
        const std::string programs = std::getenv("PATH");
        setenv("PATH", "/nonexistent", 1);
        EXPECT_EQ(probe().portal, BusService::answering);
        setenv("PATH", programs.c_str(), 1);
    }
    {
        const BusServices services(BusServices::Manner::refusing);
        EXPECT_EQ(probe().notifications, BusService::silent) << "there, but of no use";
    }
    desktop.stopWindowManager();
    EXPECT_FALSE(probe().hasWindowManager) << "though it left its mark on the root window";

    // A compositor is one that answers on the socket, not a name that an old session left behind.
    setenv("WAYLAND_DISPLAY", "wayland-7", 1);
    EXPECT_FALSE(probe().hasWayland);
    const FileDescriptor compositor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = folderOf("XDG_RUNTIME_DIR") / "wayland-7";
    std::memcpy(address.sun_path, path.c_str(), path.size());
    ASSERT_EQ(bind(compositor.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_FALSE(probe().hasWayland) << "nobody listens";
    ASSERT_EQ(listen(compositor.number(), 8), 0);
    EXPECT_TRUE(probe().hasWayland);
    setenv("WAYLAND_DISPLAY", path.c_str(), 1);
    EXPECT_TRUE(probe().hasWayland);

    desktop.stopServer();
    desktop.stopSessionBus();
    facts = probe();
    EXPECT_FALSE(facts.hasX || facts.hasXTest || facts.hasWindowManager || facts.hasSessionBus);
    EXPECT_EQ(facts.notifications, BusService::absent);
}

}  // namespace
}  // namespace kinesta::testing
