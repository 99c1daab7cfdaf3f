#include "platform/linux/session/DesktopSession.h"

#include <gtest/gtest.h>

namespace kinesta {
namespace {

using Kind = DesktopSession::Kind;
using Route = LinuxActionSettings::InputRoute;
using Capability = DesktopCapability;

TEST(DesktopSession, ChoosesTheWayThatReachesEveryWindow) {
    const DesktopFacts x11{.hasX = true, .hasXTest = true};
    const DesktopFacts noTest{.hasX = true};
    const DesktopFacts noTestButUinput{.hasX = true, .mayUseUinput = true};
    const DesktopFacts wayland{.hasWayland = true, .mayUseUinput = true};
    const DesktopFacts xWayland{.hasX = true, .hasXTest = true, .hasWayland = true, .mayUseUinput = true};
    const auto check = [](const char* what, const DesktopFacts& facts, Route wish, Kind kind, Route route, bool sends) {
        const DesktopSession session(facts, wish);
        EXPECT_EQ(session.kind(), kind) << what;
        EXPECT_EQ(facts.inputRoute(wish), route) << what;
        EXPECT_EQ(session.finding(Capability::sendInput).works, sends) << what;
    };
    check("X11", x11, Route::automatic, Kind::x11, Route::xServer, true);
    check("X11 without XTest", noTest, Route::automatic, Kind::x11, Route::uinput, false);
    check("the same with uinput", noTestButUinput, Route::automatic, Kind::x11, Route::uinput, true);
    check("X11, uinput wanted", x11, Route::uinput, Kind::x11, Route::uinput, false);
    check("Wayland", wayland, Route::automatic, Kind::wayland, Route::uinput, true);
    check("Wayland without uinput", {.hasWayland = true}, Route::automatic, Kind::wayland, Route::uinput, false);
    check("XWayland", xWayland, Route::automatic, Kind::waylandWithX, Route::uinput, true);
    check("XWayland, X wanted", xWayland, Route::xServer, Kind::waylandWithX, Route::xServer, true);
    check("Wayland, X wanted", wayland, Route::xServer, Kind::wayland, Route::xServer, false);
    check("a console", {.mayUseUinput = true}, Route::automatic, Kind::none, Route::uinput, true);
}

TEST(DesktopSession, SaysWhatToDoAboutAllThatDoesNotWork) {
    for (unsigned bits = 0; bits < 128 * 9; ++bits) {
        const auto bit = [bits](unsigned index) { return (bits >> index & 1U) != 0; };
        const DesktopFacts facts{
            bit(0), bit(1), bit(2), bit(3), bit(4), bit(5), bit(6), BusService(bits / 128 % 3), BusService(bits / 384)};
        for (const Route wish : {Route::automatic, Route::xServer, Route::uinput}) {
            const auto findings = DesktopSession(facts, wish).findings();
            ASSERT_EQ(findings.size(), 6U);
            for (std::size_t i = 0; i < findings.size(); ++i) {
                EXPECT_EQ(static_cast<std::size_t>(findings[i].capability), i);
                EXPECT_TRUE(findings[i].why.ends_with('.')) << findings[i].why;
                EXPECT_TRUE(findings[i].works || !findings[i].remedy.empty()) << findings[i].what << " " << bits;
            }
        }
    }
    const DesktopSession bare({.hasWayland = true}, Route::automatic);
    const std::string command = bare.finding(Capability::sendInput).command;
    EXPECT_TRUE(command.starts_with("sudo modprobe uinput")) << command;
    EXPECT_NE(command.find("KERNEL==\"uinput\""), std::string::npos) << command;
    EXPECT_EQ(bare.finding(Capability::open).command, "sudo apt install xdg-utils");
    EXPECT_FALSE(bare.finding(Capability::windows).works || bare.finding(Capability::keyboardLayout).works);
}

TEST(DesktopSession, SaysWhatTheWindowManagerDoes) {
    for (const auto& [closes, moves, expected] :
         {std::tuple{true, true, "takes such requests."},
          {true, false, "closes windows for other programs and does not move them."},
          {false, true, "moves windows for other programs and does not close them."},
          {false, false, "takes no such requests, or does not answer."}}) {
        DesktopFacts facts{.hasX = true, .hasXTest = true, .hasWindowManager = true};
        facts.windowManager = "Some";
        facts.closesWindows = closes;
        facts.movesWindows = moves;
        const auto finding = DesktopSession(facts, Route::automatic).finding(Capability::windows);
        EXPECT_EQ(finding.works, closes && moves) << finding.why;
        EXPECT_EQ(finding.why, std::string("The window manager “Some” ") + expected);
        facts.hasXTest = false;
        const auto withoutKeys = DesktopSession(facts, Route::automatic).finding(Capability::windows);
        EXPECT_FALSE(withoutKeys.works) << "it is never asked then";
        EXPECT_EQ(withoutKeys.why,
                  finding.why + " No window is closed or tiled as long as keys and clicks cannot be sent.");
    }
}

}  // namespace
}  // namespace kinesta
