#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <csignal>
#include <cstdlib>
#include <cstring>

#include "desktop/harness/BusPeer.h"
#include "desktop/harness/DesktopActions.h"
#include "platform/posix/FileDescriptor.h"

namespace kinesta::testing {
namespace {

using Requests = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

struct Permission : ::testing::Test {
    bool prompts() { return !actions.ports().permission.prompt(); }

    TestDesktop desktop;
    DesktopActions actions;
};

TEST_F(Permission, ShowsOneNotificationWhileNothingCanBePosted) {
    {
        BusServices services;
        EXPECT_FALSE(prompts());
        desktop.stopServer();
        EXPECT_FALSE(actions.ports().permission.isTrusted());
        EXPECT_TRUE(prompts());
        EXPECT_EQ(services.requests(1).size(), 1U) << "none while there was permission";
        // Prompts both before and after the earlier ones are answered.
        ASSERT_TRUE(eventually([&] { return prompts() && services.requests(1).size() >= 3; }));
        const Requests requests = services.requests(3);
        EXPECT_TRUE(requests.front().starts_with("notify 0 -> 1: Kinesta may not send keys and clicks | "))
            << requests.front();
        for (std::size_t i = 1; i < requests.size(); ++i)
            EXPECT_TRUE(requests[i].starts_with("notify 1 -> 1:")) << requests[i];
    }
    desktop.sessionBus.reset();
    EXPECT_TRUE(prompts());
    desktop.startSessionBus();
    BusServices services;
    EXPECT_TRUE(prompts());
    EXPECT_TRUE(services.requests(1).at(0).starts_with("notify 0 -> 1:")) << services.requests(1).front();
}

TEST_F(Permission, DoesNotWaitForADesktopThatHangs) {
    desktop.stopServer();
    EXPECT_TRUE(prompts()) << "without services";
    const auto start = Clock::now();
    {
        BusServices services(BusServices::Manner::hanging);
        for (int i = 0; i < 100; ++i)
            EXPECT_TRUE(prompts());
        EXPECT_EQ(services.requests(1).size(), 1U) << "a hundred would appear once it answers";
    }
    DesktopActions later;
    desktop.sessionBus->signal(SIGSTOP);
    EXPECT_FALSE(later.ports().permission.prompt());
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(1));
    desktop.sessionBus->signal(SIGCONT);
    BusServices services;
    EXPECT_FALSE(later.ports().permission.prompt());
    services.requests(1);
}

TEST(DesktopFacts, AreWhatIsThere) {
    TestDesktop desktop(TestDesktop::openbox);
    DesktopActions actions;
    const auto works = [&](DesktopCapability capability) { return actions.session().finding(capability).works; };
    using enum DesktopCapability;
    EXPECT_TRUE(works(sendInput) && works(windows) && works(open));
    EXPECT_FALSE(works(notify));
    const std::string programs = std::getenv("PATH");
    setenv("PATH", "/nonexistent", 1);
    EXPECT_FALSE(works(open)) << "no xdg-open and no portal";
    {
        const BusServices services;
        EXPECT_TRUE(works(notify));
        EXPECT_TRUE(works(open)) << "by the portal";
    }
    setenv("PATH", programs.c_str(), 1);
    {
        const BusServices services(BusServices::Manner::refusing);
        EXPECT_FALSE(works(notify));
    }
    desktop.windowManager.reset();
    EXPECT_FALSE(works(windows)) << "though it left its mark on the root window";

    // A compositor counts only if it listens on the socket: the file may be left from an old session.
    using Kind = DesktopSession::Kind;
    const auto kind = [&](const std::string& compositor) {
        setenv("WAYLAND_DISPLAY", compositor.c_str(), 1);
        return actions.session().kind();
    };
    EXPECT_EQ(kind("wayland-7"), Kind::x11);
    const FileDescriptor compositor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = folderOf("XDG_RUNTIME_DIR") / "wayland-7";
    std::memcpy(address.sun_path, path.c_str(), path.size());
    ASSERT_EQ(bind(compositor.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(kind("wayland-7"), Kind::x11);
    ASSERT_EQ(listen(compositor.number(), 8), 0);
    EXPECT_EQ(kind("wayland-7"), Kind::waylandWithX);
    EXPECT_EQ(kind(path), Kind::waylandWithX);
    desktop.stopServer();
    EXPECT_EQ(kind(""), Kind::none);
}

}  // namespace
}  // namespace kinesta::testing
