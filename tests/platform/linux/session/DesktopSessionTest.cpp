#include "platform/linux/session/DesktopSession.h"

#include <gtest/gtest.h>

namespace kinesta {
namespace {

using Kind = DesktopSession::Kind;
using Route = LinuxActionSettings::InputRoute;
using Capability = DesktopCapability;

DesktopFacts x11() {
    return {.hasX = true,
            .hasXTest = true,
            .hasWindowManager = true,
            .hasXdgOpen = true,
            .hasSessionBus = true,
            .notifications = BusService::answering};
}

DesktopFacts wayland() {
    return {.hasWayland = true,
            .mayUseUinput = true,
            .hasXdgOpen = true,
            .hasSessionBus = true,
            .notifications = BusService::answering};
}

DesktopFacts with(DesktopFacts facts, bool DesktopFacts::*fact, bool value) {
    facts.*fact = value;
    return facts;
}

TEST(DesktopSession, ChoosesTheWayThatReachesEveryWindow) {
    const DesktopFacts withX = with(with(wayland(), &DesktopFacts::hasX, true), &DesktopFacts::hasXTest, true);
    const DesktopFacts noTest = with(x11(), &DesktopFacts::hasXTest, false);
    const DesktopFacts noTestButUinput = with(noTest, &DesktopFacts::mayUseUinput, true);
    const DesktopFacts refused = with(wayland(), &DesktopFacts::mayUseUinput, false);
    const auto check = [](const char* what, const DesktopFacts& facts, Route wish, Kind kind, Route route, bool sends) {
        const DesktopSession session(facts, wish);
        EXPECT_EQ(session.kind(), kind) << what;
        EXPECT_EQ(facts.inputRoute(wish), route) << what;
        EXPECT_EQ(session.finding(Capability::sendInput).works, sends) << what;
    };
    check("X11", x11(), Route::automatic, Kind::x11, Route::xServer, true);
    check("X11 without XTest", noTest, Route::automatic, Kind::x11, Route::uinput, false);
    check("the same, allowed uinput", noTestButUinput, Route::automatic, Kind::x11, Route::uinput, true);
    check("X11, uinput wished", x11(), Route::uinput, Kind::x11, Route::uinput, false);
    check("Wayland", wayland(), Route::automatic, Kind::wayland, Route::uinput, true);
    check("Wayland, not allowed", refused, Route::automatic, Kind::wayland, Route::uinput, false);
    check("XWayland", withX, Route::automatic, Kind::waylandWithX, Route::uinput, true);
    check("XWayland, X wished", withX, Route::xServer, Kind::waylandWithX, Route::xServer, true);
    check("Wayland, X wished", wayland(), Route::xServer, Kind::wayland, Route::xServer, false);
    check("a console", {.mayUseUinput = true}, Route::automatic, Kind::none, Route::uinput, true);
    check("nothing", {}, Route::automatic, Kind::none, Route::uinput, false);
}

TEST(DesktopSession, SaysWhatToDoAboutAllThatDoesNotWork) {
    // Every combination of facts that can be, with each wish.
    for (unsigned bits = 0; bits < 2048; ++bits) {
        const auto bit = [&](unsigned index) { return (bits >> index & 1U) != 0; };
        const auto service = [&](unsigned index) {
            if (!bit(6) || !bit(index))
                return BusService::absent;
            return bit(index + 1) ? BusService::answering : BusService::silent;
        };
        const DesktopFacts facts{bit(0), bit(0) && bit(1), bit(0) && bit(2), bit(3),    bit(4),
                                 bit(5), bit(6),           service(7),       service(9)};
        for (const Route wish : {Route::automatic, Route::xServer, Route::uinput}) {
            const DesktopSession session(facts, wish);
            const auto findings = session.findings();
            ASSERT_EQ(findings.size(), 5U);
            for (std::size_t i = 0; i < findings.size(); ++i) {
                EXPECT_EQ(static_cast<std::size_t>(findings[i].capability), i);
                EXPECT_TRUE(findings[i].why.ends_with('.')) << findings[i].why;
                EXPECT_TRUE(findings[i].works || !findings[i].remedy.empty()) << findings[i].what << " " << bits;
            }
        }
    }
}

TEST(DesktopSession, TellsWhatTheWindowManagerDoes) {
    const auto tells = [](bool closes, bool moves, bool works, const std::string& expected) {
        DesktopFacts facts = x11();
        facts.windowManager = "Some";
        facts.closesWindows = closes;
        facts.movesWindows = moves;
        const auto finding = DesktopSession(facts, Route::automatic).finding(Capability::windows);
        EXPECT_EQ(finding.works, works) << finding.why;
        EXPECT_EQ(finding.why, "The window manager “Some” " + expected);
    };
    tells(true, true, true, "takes such requests.");
    tells(true, false, false, "closes windows for other programs and does not move them.");
    tells(false, true, false, "moves windows for other programs and does not close them.");
    tells(false, false, false, "takes no such requests, or does not answer.");
}

TEST(DesktopSession, NamesTheCommandThatMends) {
    const DesktopSession refused(with(wayland(), &DesktopFacts::mayUseUinput, false), Route::automatic);
    const std::string remedy = refused.finding(Capability::sendInput).remedy;
    EXPECT_TRUE(remedy.starts_with("Run once: sudo modprobe uinput")) << remedy;
    EXPECT_NE(remedy.find("KERNEL==\"uinput\""), std::string::npos) << remedy;
    const DesktopSession bare(with(x11(), &DesktopFacts::hasXdgOpen, false), Route::automatic);
    EXPECT_EQ(bare.finding(Capability::open).remedy, "Install xdg-utils: sudo apt install xdg-utils");
    EXPECT_FALSE(DesktopSession(wayland(), Route::automatic).finding(Capability::windows).works);
    EXPECT_FALSE(DesktopSession(wayland(), Route::automatic).finding(Capability::keyboardLayout).works);
}

}  // namespace
}  // namespace kinesta
