#include "platform/linux/windows/TilingGeometry.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/EnumTable.h"

namespace kinesta {

void PrintTo(const WindowRectangle& r, std::ostream* out) {
    *out << r.width << 'x' << r.height << '+' << r.x << '+' << r.y;
}

namespace testing {
namespace {

using Command = WindowTilingMenuCommand;
using Places = std::vector<WindowRectangle>;

// Odd width and height: the right and the lower part get the extra pixel.
constexpr WindowRectangle kArea{10, 20, 1001, 701};
constexpr WindowRectangle kLeft{10, 20, 500, 701};
constexpr WindowRectangle kRight{510, 20, 501, 701};
constexpr WindowRectangle kTop{10, 20, 1001, 350};
constexpr WindowRectangle kBottom{10, 370, 1001, 351};
constexpr WindowRectangle kTopLeft{10, 20, 500, 350};
constexpr WindowRectangle kTopRight{510, 20, 501, 350};
constexpr WindowRectangle kBottomLeft{10, 370, 500, 351};
constexpr WindowRectangle kBottomRight{510, 370, 501, 351};

TEST(TilingGeometry, GivesEachOfSeveralWindowsItsPlace) {
    const struct {
        Command command;
        Places all, two;
    } rows[] = {
        {Command::leftAndRight, {kLeft, kRight}, {kLeft, kRight}},
        {Command::rightAndLeft, {kRight, kLeft}, {kRight, kLeft}},
        {Command::topAndBottom, {kTop, kBottom}, {kTop, kBottom}},
        {Command::bottomAndTop, {kBottom, kTop}, {kBottom, kTop}},
        {Command::leftThreeUp, {kLeft, kTopRight, kBottomRight}, {kLeft, kRight}},
        {Command::rightThreeUp, {kRight, kTopLeft, kBottomLeft}, {kRight, kLeft}},
        {Command::topThreeUp, {kTop, kBottomLeft, kBottomRight}, {kTop, kBottom}},
        {Command::bottomThreeUp, {kBottom, kTopLeft, kTopRight}, {kBottom, kTop}},
    };
    for (const auto& row : rows)
        for (const auto& [count, expected] : std::initializer_list<std::pair<std::size_t, Places>>{
                 {9, row.all}, {3, row.all}, {2, row.two}, {1, {row.two[0]}}, {0, {}}})
            EXPECT_EQ(tilingPlaces(row.command, kArea, count), expected) << rawValue(row.command) << ' ' << count;
}

TEST(TilingGeometry, CoversEveryPixelOfAnyAreaOnce) {
    for (const auto& row : enumTable<Command>())
        for (const WindowSize size : {WindowSize{2, 2}, {2, 3}, {3, 2}, {5, 4}}) {
            const std::size_t count = tilingWindowCount(row.value);
            const auto places = tilingPlaces(row.value, {-3, 7, size.width, size.height}, count);
            int covered = 0;
            for (const auto& place : places) {
                covered += place.width * place.height;
                for (const auto& other : places)
                    EXPECT_EQ(place.intersects(other), &place == &other) << row.rawValue;
            }
            EXPECT_TRUE(count < 2 || covered == size.width * size.height) << row.rawValue;
        }
}

TEST(TilingGeometry, FitsWindowsThatDoNotTakeEverySize) {
    const auto check = [](const char* what, WindowRectangle place, const WindowSizeLimits& limits,
                          WindowRectangle expected) {
        EXPECT_EQ(fitted(place, {1, 2, 20, 5}, limits, kArea), expected) << what;
    };
    const WindowSizeLimits cells{.base = {4, 4}, .increment = {6, 13}, .aspect = {}};
    const WindowSizeLimits film{.aspect = WindowSizeLimits::AspectRange{1.5, 2}};
    check("a terminal stays within its place", kRight, cells, {510, 20, 3 + 496, 25 + 667});
    check("cells that fit to the pixel", {0, 0, 3 + 4 + 60, 25 + 4 + 130}, cells, {10, 20, 67, 159});
    check("cells not below the least size", kRight, {.minimum = {500, 300}, .increment = {400, 400}, .aspect = {}},
          {1011 - 803, 20, 803, 425});
    check("no larger than it wants to be", kBottomRight, {.maximum = {200, 100}, .aspect = {}}, {510, 370, 203, 125});
    check("too high for its half", kBottom, {.minimum = {1, 400}, .aspect = {}}, {10, 721 - 425, 1001, 425});
    check("its title bar stays in the area", kBottomRight, {.minimum = {2000, 2000}, .aspect = {}},
          {10, 20, 2003, 2025});
    check("a film no wider than its pictures", {10, 20, 1003, 225}, film, {10, 20, 403, 225});
    check("a film no higher than its pictures", {10, 20, 303, 701}, film, {10, 20, 303, 225});
    check("contradicting limits", kRight, {.minimum = {300, 300}, .maximum = {200, 200}, .aspect = {}},
          {510, 20, 303, 325});
    check("a place smaller than the frame", {10, 20, 2, 2}, {}, {10, 20, 4, 26});
    EXPECT_EQ(centered({501, 301}, kArea), (WindowRectangle{260, 220, 501, 301}));
    EXPECT_EQ(centered({1002, 900}, kArea), kArea);
}

}  // namespace
}  // namespace testing
}  // namespace kinesta
