#include "platform/linux/EwmhWorkAreas.h"

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
const EwmhWindow kTopOfRight = dock({640, 0, 640, 25}, {.top = {25, 640, 1279}});
// On an inner edge: told from the screen's edge, the room seems to hold all of the left monitor.
const EwmhWindow kLeftOfRight = dock({640, 0, 40, 600}, {.left = {680, 0, 599}});
const EwmhWindow kRightOfRight = dock({1250, 0, 30, 600}, {.right = {30, 0, 599}});
const EwmhWindow kAcrossTheTop = dock({0, 0, 1280, 20}, {.top = {20, 0, 1279}});

TEST(EwmhWorkAreas, AreWhatDocksLeaveOfEachMonitor) {
    EwmhWindow hidden = kBottomOfLeft;
    hidden.isHidden = true;
    EwmhWindow elsewhere = kBottomOfLeft;
    elsewhere.desktop = 1;
    const EwmhWindow offScreen = dock({0, -40, 640, 30}, {.top = {2, 0, 639}});
    const EwmhWindow greedy = dock({0, 0, 640, 800}, {.left = {640, 0, 799}});
    const struct {
        const char* description;
        std::vector<EwmhWindow> windows;
        WindowRectangle left, right;
    } rows[] = {
        {"no dock", {}, kLeft, kRight},
        {"a window that is none", {EwmhWindow{}}, kLeft, kRight},
        {"below one", {kBottomOfLeft}, {0, 0, 640, 770}, kRight},
        {"above the other", {kTopOfRight}, kLeft, {640, 25, 640, 575}},
        {"on the inner edge", {kLeftOfRight}, kLeft, {680, 0, 600, 600}},
        {"on the far edge", {kRightOfRight}, kLeft, {640, 0, 610, 600}},
        {"across both", {kAcrossTheTop}, {0, 20, 640, 780}, {640, 20, 640, 580}},
        {"several",
         {kBottomOfLeft, kTopOfRight, kLeftOfRight, kRightOfRight, kAcrossTheTop},
         {0, 20, 640, 750},
         {680, 25, 570, 575}},
        {"hidden", {hidden}, kLeft, kRight},
        {"on another desktop", {elsewhere}, kLeft, kRight},
        {"that slides in", {offScreen}, {0, 2, 640, 798}, kRight},
        {"that takes all", {greedy}, kLeft, kRight},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ewmhWorkAreas({kScreen, {kLeft, kRight}, kScreen, {}, row.windows, 0}),
                  (std::vector<EwmhMonitor>{{kLeft, row.left}, {kRight, row.right}}))
            << row.description;
}

TEST(EwmhWorkAreas, FollowWhatTheDesktopTells) {
    const std::vector<EwmhWindow> windows{kBottomOfLeft};
    const struct {
        const char* description;
        std::vector<WindowRectangle> monitors;
        std::optional<WindowRectangle> screenWorkArea;
        std::vector<WindowRectangle> monitorWorkAreas;
        std::vector<WindowRectangle> expected;
    } rows[] = {
        {"one monitor: the window manager's word",
         {kScreen},
         WindowRectangle{5, 6, 1200, 700},
         {},
         {{5, 6, 1200, 700}}},
        {"one monitor, no word", {kScreen}, std::nullopt, {}, {{0, 0, 1280, 770}}},
        {"one monitor, no room left", {kScreen}, WindowRectangle{0, 0, 0, 0}, {}, {{0, 0, 1280, 770}}},
        {"each monitor told, in another order",
         {kLeft, kRight},
         kScreen,
         {{640, 27, 640, 573}, {0, 0, 640, 790}},
         {{0, 0, 640, 790}, {640, 27, 640, 573}}},
        {"only one told", {kLeft, kRight}, kScreen, {{640, 27, 640, 573}}, {{0, 0, 640, 770}, {640, 27, 640, 573}}},
        {"told by the dock already", {kLeft, kRight}, WindowRectangle{0, 0, 1280, 770}, {}, {{0, 0, 640, 770}, kRight}},
        {"margins of the window manager's own",
         {kLeft, kRight},
         WindowRectangle{7, 8, 1264, 752},
         {},
         {{7, 8, 633, 752}, {640, 8, 631, 592}}},
        {"margins that leave nothing",
         {kLeft, kRight},
         WindowRectangle{640, 0, 640, 800},
         {},
         {{0, 0, 640, 770}, kRight}},
    };
    for (const auto& row : rows) {
        const auto monitors =
            ewmhWorkAreas({kScreen, row.monitors, row.screenWorkArea, row.monitorWorkAreas, windows, 0});
        std::vector<WindowRectangle> areas;
        for (const auto& monitor : monitors)
            areas.push_back(monitor.workArea);
        EXPECT_EQ(areas, row.expected) << row.description;
    }
}

}  // namespace
}  // namespace kinesta::testing
