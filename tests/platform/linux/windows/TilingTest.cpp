#include <gtest/gtest.h>

#include <ostream>

#include "platform/linux/windows/TilingGeometry.h"
#include "platform/linux/windows/TilingPlan.h"
#include "platform/linux/windows/TilingRecord.h"
#include "support/EnumTable.h"

namespace kinesta {

void PrintTo(const WindowRectangle& r, std::ostream* out) {
    *out << r.width << 'x' << r.height << '+' << r.x << '+' << r.y;
}

namespace testing {
namespace {

using Command = WindowTilingMenuCommand;
using Ids = std::vector<EwmhWindowId>;

/// The places of windows 1, 2 and 3 in a picture of the area's quarters, from the upper left to the lower right. The
/// right and the lower ones get the extra pixel.
std::vector<WindowRectangle> placesIn(const std::string& picture, const WindowRectangle& area) {
    std::vector<WindowRectangle> places;
    const int left = area.width / 2, top = area.height / 2;
    for (const char window : {'1', '2', '3'}) {
        if (picture.find(window) == std::string::npos)
            break;
        const auto has = [&](std::size_t quarter) { return picture[quarter] == window; };
        const int x = has(0) || has(2) ? 0 : left, y = has(0) || has(1) ? 0 : top;
        places.push_back({area.x + x, area.y + y, (has(1) || has(3) ? area.width : left) - x,
                          (has(2) || has(3) ? area.height : top) - y});
    }
    return places;
}

TEST(TilingGeometry, GivesEachWindowItsPlace) {
    const std::tuple<Command, std::string, std::string, std::string> rows[] = {
        // With one window, two, and more.
        {Command::fill, "1111", "1111", "1111"},         {Command::left, "1-1-", "1-1-", "1-1-"},
        {Command::right, "-1-1", "-1-1", "-1-1"},        {Command::top, "11--", "11--", "11--"},
        {Command::bottom, "--11", "--11", "--11"},       {Command::center, "----", "----", "----"},
        {Command::leftAndRight, "1-1-", "1212", "1212"}, {Command::rightAndLeft, "-1-1", "2121", "2121"},
        {Command::topAndBottom, "11--", "1122", "1122"}, {Command::bottomAndTop, "--11", "2211", "2211"},
        {Command::leftThreeUp, "1-1-", "1212", "1213"},  {Command::rightThreeUp, "-1-1", "2121", "2131"},
        {Command::topThreeUp, "11--", "1122", "1123"},   {Command::bottomThreeUp, "--11", "2211", "2311"},
        {Command::untile, "----", "----", "----"},
    };
    for (const WindowRectangle area : {WindowRectangle{10, 20, 1001, 701}, {-3, 7, 2, 3}, {-3, 7, 4, 2}})
        for (const auto& [command, one, two, more] : rows)
            for (const auto& [count, picture] :
                 {std::pair(std::size_t{0}, std::string("----")), {1, one}, {2, two}, {3, more}, {9, more}})
                EXPECT_EQ(tilingPlaces(command, area, count), placesIn(picture, area))
                    << rawValue(command) << ' ' << count << " in " << area.width;
}

TEST(TilingGeometry, FitsWindowsThatDoNotTakeEverySize) {
    constexpr WindowRectangle kArea{10, 20, 1001, 701}, kRight{510, 20, 501, 701};
    constexpr WindowRectangle kBottom{10, 370, 1001, 351}, kBottomRight{510, 370, 501, 351};
    const WindowSizeLimits cells{.base = {4, 4}, .increment = {6, 13}, .aspect = {}};
    const WindowSizeLimits film{.aspect = WindowSizeLimits::AspectRange{1.5, 2}};
    const std::tuple<const char*, WindowRectangle, WindowSizeLimits, WindowRectangle> rows[] = {
        {"a terminal stays within its place", kRight, cells, {510, 20, 3 + 496, 25 + 667}},
        {"cells that fit to the pixel", {0, 0, 3 + 4 + 60, 25 + 4 + 130}, cells, {10, 20, 67, 159}},
        {"cells not below the least size",
         kRight,
         {.minimum = {500, 300}, .increment = {400, 400}, .aspect = {}},
         {1011 - 803, 20, 803, 425}},
        {"no larger than it wants to be", kBottomRight, {.maximum = {200, 100}, .aspect = {}}, {510, 370, 203, 125}},
        {"too high for its half", kBottom, {.minimum = {1, 400}, .aspect = {}}, {10, 721 - 425, 1001, 425}},
        {"its title bar stays in the area",
         kBottomRight,
         {.minimum = {2000, 2000}, .aspect = {}},
         {10, 20, 2003, 2025}},
        {"a film no wider than its pictures", {10, 20, 1003, 225}, film, {10, 20, 403, 225}},
        {"a film no higher than its pictures", {10, 20, 303, 701}, film, {10, 20, 303, 225}},
        {"contradicting limits",
         kRight,
         {.minimum = {300, 300}, .maximum = {200, 200}, .aspect = {}},
         {510, 20, 303, 325}},
        {"a place smaller than the frame", {10, 20, 2, 2}, {}, {10, 20, 4, 26}},
    };
    for (const auto& [what, place, limits, expected] : rows)
        EXPECT_EQ(fitted(place, {1, 2, 20, 5}, limits, kArea), expected) << what;
    EXPECT_EQ(centered({501, 301}, kArea), (WindowRectangle{260, 220, 501, 301}));
    EXPECT_EQ(centered({1002, 900}, kArea), kArea);
}

/// Two monitors and the windows 1, 2, 3 … from the lowest to the highest, all on the left one; the highest is active.
EwmhSnapshot desktopOf(std::size_t count) {
    EwmhSnapshot desktop;
    desktop.monitors = {{{0, 0, 640, 800}, {0, 0, 640, 780}}, {{640, 0, 640, 800}, {640, 0, 640, 800}}};
    desktop.currentDesktop = 1;
    desktop.windows.resize(count);
    for (EwmhWindow& window : desktop.windows) {
        window.id = ++desktop.activeWindow;
        window.desktop = 1;
        window.frame = {10, 10, 300, 200};
    }
    return desktop;
}

Ids participants(Command command, const EwmhSnapshot& desktop) {
    Ids ids;
    for (const auto& window : tilingParticipants(command, desktop))
        ids.push_back(window.id);
    return ids;
}

TEST(TilingPlan, TakesTheActiveWindowAndThenTheNextOnesBelow) {
    auto desktop = desktopOf(5);
    EXPECT_EQ(participants(Command::bottomThreeUp, desktop), (Ids{5, 4, 3}));
    desktop.activeWindow = 2;  // A window manager may leave an active window below others.
    EXPECT_EQ(participants(Command::leftThreeUp, desktop), (Ids{2, 5, 4}));
    EXPECT_EQ(participants(Command::leftThreeUp, desktopOf(2)), (Ids{2, 1}));
    for (const EwmhWindowId none : {0U, 9U}) {  // none is active, or one that is gone from the list
        desktop.activeWindow = none;
        EXPECT_EQ(participants(Command::fill, desktop), Ids{});
    }
}

TEST(TilingPlan, SkipsWindowsThatCannotBeTiled) {
    // "2" can join another window, "1" be tiled alone, "c" be centered.
    const std::tuple<const char*, void (*)(EwmhWindow&), std::string> rows[] = {
        {"on all desktops", [](EwmhWindow& w) { w.desktop = EwmhWindow::kAllDesktops; }, "2 1 c"},
        {"mostly on another monitor", [](EwmhWindow& w) { w.frame.x = 491; }, "1 c"},
        {"mostly on this monitor", [](EwmhWindow& w) { w.frame.x = 489; }, "2 1 c"},
        {"a dialog", [](EwmhWindow& w) { w.type = EwmhWindowType::dialog; }, ""},
        {"modal", [](EwmhWindow& w) { w.isModal = true; }, ""},
        {"not movable", [](EwmhWindow& w) { w.mayMove = false; }, ""},
        {"not resizable", [](EwmhWindow& w) { w.mayResize = false; }, "c"},
        {"of one width", [](EwmhWindow& w) { w.limits.minimum.width = w.limits.maximum.width = 5; }, "2 1 c"},
        {"on no task bar", [](EwmhWindow& w) { w.skipsTaskbar = true; }, "1 c"},
    };
    for (const auto& [what, change, can] : rows) {
        const auto holds = [&can = can](char role) { return can.find(role) != std::string::npos; };
        auto desktop = desktopOf(3);
        change(desktop.windows[1]);
        EXPECT_EQ(participants(Command::topAndBottom, desktop), (Ids{3, holds('2') ? 2U : 1U})) << what;
        desktop = desktopOf(1);
        change(desktop.windows[0]);
        for (const auto& command : enumTable<Command>())
            EXPECT_EQ(canTile(command.value, desktop), holds(command.value == Command::center ? 'c' : '1'))
                << what << ' ' << command.rawValue;
    }
}

TEST(EwmhSnapshot, FindsTheModalDialogsOfAWindow) {
    const auto window = [](EwmhWindowId id, bool isModal, EwmhWindowId owner = 0, EwmhWindowId group = 0) {
        EwmhWindow result;
        result.id = id;
        result.isModal = isModal;
        result.transientFor = owner;
        result.group = group;
        return result;
    };
    const EwmhWindow alone = window(1, false), leader = window(1, true, 0, 50);
    const std::tuple<const char*, std::vector<EwmhWindow>, Ids> rows[] = {
        {"no owner and no group", {alone, window(3, true)}, {}},
        {"by way of another dialog", {alone, window(2, false, 1), window(3, true, 2)}, {3}},
        {"in a circle", {alone, window(2, false, 3), window(3, true, 2)}, {}},
        {"of a window that is gone", {alone, window(3, true, 77)}, {}},
        {"of the group, and not the window's own", {leader, window(3, true, 50, 50)}, {3}},
        {"of the group by way of the root", {leader, window(3, true, 99, 50)}, {3}},
        {"of another group", {leader, window(3, true, 50, 51), window(4, true, 1), window(5, true, 1)}, {4, 5}},
    };
    for (const auto& [what, windows, expected] : rows) {
        EwmhSnapshot desktop;
        desktop.root = 99;
        desktop.windows = windows;
        EXPECT_EQ(desktop.modalDialogsOf(desktop.windows[0]), expected) << what;
    }
}

TEST(TilingRecord, ComesBackFromTheNumbersOfAProperty) {
    EwmhWindow before, restored;
    before.isMaximizedHorizontally = true;
    restored.frame = {-5, 20, 300, 200};
    auto record = TilingRecord::of(before, restored);
    record.tiledFrame = {0, 0, 640, 780};
    const auto encoded = record.encoded();
    const std::vector<std::uint32_t> good(encoded.begin(), encoded.end());
    EXPECT_EQ(TilingRecord::decoded(good), record);
    auto numbers = good;
    for (std::size_t i = 0; i < 8; ++i, numbers = good)
        for (const std::uint32_t bad : {32768U, 0x7FFFFFFFU, 0x80000000U, i % 4 < 2 ? 0xFFFF7FFFU : 0U}) {
            numbers[i] = bad;
            EXPECT_EQ(TilingRecord::decoded(numbers), std::nullopt) << i << ' ' << bad;
        }
    for (const std::size_t size : {10U, 8U, 0U}) {
        numbers.resize(size);
        EXPECT_EQ(TilingRecord::decoded(numbers), std::nullopt) << size;
    }
}

TEST(TilingRecord, KnowsAWindowThatAPersonHasMoved) {
    TilingRecord record;
    record.tiledFrame = {100, 100, 500, 400};
    EwmhWindow window;
    window.limits.increment = {6, 13};
    const std::pair<WindowRectangle, bool> rows[] = {
        {{114, 100, 500, 400}, true}, {{115, 100, 500, 400}, false}, {{100, 79, 500, 400}, true},
        {{100, 78, 500, 400}, false}, {{100, 100, 486, 400}, true},  {{100, 100, 485, 400}, false},
        {{100, 100, 500, 421}, true}, {{100, 100, 500, 422}, false},
    };
    for (const auto& [frame, isWhereItWasPut] : rows) {
        window.frame = frame;
        EXPECT_EQ(record.describes(window), isWhereItWasPut) << frame.x << ' ' << frame.y << ' ' << frame.width;
    }
}

}  // namespace
}  // namespace testing
}  // namespace kinesta
