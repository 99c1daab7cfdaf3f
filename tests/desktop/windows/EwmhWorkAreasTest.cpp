#include "platform/linux/windows/EwmhWorkAreas.h"

#include <gtest/gtest.h>

namespace kinesta::testing {
namespace {

constexpr WindowRectangle kScreen{0, 0, 1280, 800};
constexpr WindowRectangle kLeft{0, 0, 640, 800};
constexpr WindowRectangle kRight{640, 0, 640, 600};

EwmhWindow dock(const WindowRectangle& frame, const EwmhStruts& struts) {
    EwmhWindow window;
    window.type = EwmhWindowType::other;
    window.desktop = 0;
    window.frame = frame;
    window.struts = struts;
    return window;
}

const EwmhWindow kBottomOfLeft = dock({0, 770, 640, 30}, {.bottom = {30, 0, 639}});

TEST(EwmhWorkAreas, AreWhatDocksLeaveOfEachMonitor) {
    EwmhWindow hidden = kBottomOfLeft;
    hidden.isHidden = true;
    EwmhWindow elsewhere = kBottomOfLeft;
    elsewhere.desktop = 1;
    const auto topOfRight = dock({640, 0, 640, 25}, {.top = {25, 640, 1279}});
    // A dock on an inner edge: measured from the edge of the screen, it covers all of the left monitor.
    const auto leftOfRight = dock({640, 0, 40, 600}, {.left = {680, 0, 599}});
    const auto acrossTheTop = dock({0, 0, 1280, 20}, {.top = {20, 0, 1279}});
    const auto slidesIn = dock({0, -40, 640, 30}, {.top = {2, 0, 639}});
    const auto takesAll = dock({0, 0, 640, 800}, {.left = {640, 0, 799}});
    const auto check = [](const char* what, const std::vector<EwmhWindow>& windows, const WindowRectangle& left,
                          const WindowRectangle& right) {
        EXPECT_EQ(ewmhWorkAreas({kScreen, {kLeft, kRight}, kScreen, {}, windows, 0}),
                  (std::vector<EwmhMonitor>{{kLeft, left}, {kRight, right}}))
            << what;
    };
    check("none that counts", {EwmhWindow{}, hidden, elsewhere, takesAll}, kLeft, kRight);
    check("on the inner edge", {leftOfRight}, kLeft, {680, 0, 600, 600});
    check("several", {kBottomOfLeft, topOfRight, leftOfRight, acrossTheTop}, {0, 20, 640, 750}, {680, 25, 600, 575});
    check("that slides in", {slidesIn}, {0, 2, 640, 798}, kRight);
}

TEST(EwmhWorkAreas, FollowTheAreasThatTheDesktopLists) {
    using Areas = std::vector<WindowRectangle>;
    const std::vector<EwmhWindow> windows{kBottomOfLeft};
    const Areas both{kLeft, kRight};
    const auto check = [&](const char* what, const Areas& monitors, std::optional<WindowRectangle> screenWorkArea,
                           const Areas& monitorWorkAreas, const Areas& expected) {
        Areas areas;
        for (const auto& each : ewmhWorkAreas({kScreen, monitors, screenWorkArea, monitorWorkAreas, windows, 0}))
            areas.push_back(each.workArea);
        EXPECT_EQ(areas, expected) << what;
    };
    const WindowRectangle listed{640, 27, 640, 573};
    const WindowRectangle leftOver{0, 0, 640, 770};
    check("the window manager's area", {kScreen}, {{5, 6, 1200, 700}}, {}, {{5, 6, 1200, 700}});
    check("no area", {kScreen}, {}, {}, {{0, 0, 1280, 770}});
    check("no room left", {kScreen}, {{0, 0, 0, 0}}, {}, {{0, 0, 1280, 770}});
    check("listed in another order", both, kScreen, {listed, {0, 0, 640, 790}}, {{0, 0, 640, 790}, listed});
    check("only one listed", both, kScreen, {listed}, {leftOver, listed});
    check("the dock's area already", both, {{0, 0, 1280, 770}}, {}, {leftOver, kRight});
    check("margins of its own", both, {{7, 8, 1264, 752}}, {}, {{7, 8, 633, 752}, {640, 8, 631, 592}});
    check("margins that leave nothing", both, {{640, 0, 640, 800}}, {}, {leftOver, kRight});
}

}  // namespace
}  // namespace kinesta::testing
