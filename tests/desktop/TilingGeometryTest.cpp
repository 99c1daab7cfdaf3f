#include "platform/linux/TilingGeometry.h"

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

// Odd both ways: the right and the lower part get the pixel more.
constexpr WindowRectangle kArea{10, 20, 1001, 701};
constexpr WindowRectangle kLeft{10, 20, 500, 701};
constexpr WindowRectangle kRight{510, 20, 501, 701};
constexpr WindowRectangle kTop{10, 20, 1001, 350};
constexpr WindowRectangle kBottom{10, 370, 1001, 351};
constexpr WindowRectangle kTopLeft{10, 20, 500, 350};
constexpr WindowRectangle kTopRight{510, 20, 501, 350};
constexpr WindowRectangle kBottomLeft{10, 370, 500, 351};
constexpr WindowRectangle kBottomRight{510, 370, 501, 351};

TEST(TilingGeometry, GivesEachWindowItsPlace) {
    const struct {
        Command command;
        Places three, two, one;
    } rows[] = {
        {Command::fill, {kArea}, {kArea}, {kArea}},
        {Command::center, {}, {}, {}},
        {Command::left, {kLeft}, {kLeft}, {kLeft}},
        {Command::right, {kRight}, {kRight}, {kRight}},
        {Command::top, {kTop}, {kTop}, {kTop}},
        {Command::bottom, {kBottom}, {kBottom}, {kBottom}},
        {Command::untile, {}, {}, {}},
        {Command::leftAndRight, {kLeft, kRight}, {kLeft, kRight}, {kLeft}},
        {Command::rightAndLeft, {kRight, kLeft}, {kRight, kLeft}, {kRight}},
        {Command::topAndBottom, {kTop, kBottom}, {kTop, kBottom}, {kTop}},
        {Command::bottomAndTop, {kBottom, kTop}, {kBottom, kTop}, {kBottom}},
        {Command::leftThreeUp, {kLeft, kTopRight, kBottomRight}, {kLeft, kRight}, {kLeft}},
        {Command::rightThreeUp, {kRight, kTopLeft, kBottomLeft}, {kRight, kLeft}, {kRight}},
        {Command::topThreeUp, {kTop, kBottomLeft, kBottomRight}, {kTop, kBottom}, {kTop}},
        {Command::bottomThreeUp, {kBottom, kTopLeft, kTopRight}, {kBottom, kTop}, {kBottom}},
    };
    ASSERT_EQ(std::size(rows), enumTable<Command>().size());
    for (const auto& row : rows) {
        EXPECT_EQ(tilingPlaces(row.command, kArea, 9), row.three) << rawValue(row.command);
        EXPECT_EQ(tilingPlaces(row.command, kArea, 3), row.three) << rawValue(row.command);
        EXPECT_EQ(tilingPlaces(row.command, kArea, 2), row.two) << rawValue(row.command);
        EXPECT_EQ(tilingPlaces(row.command, kArea, 1), row.one) << rawValue(row.command);
        EXPECT_EQ(tilingPlaces(row.command, kArea, 0), Places{}) << rawValue(row.command);
    }
}

TEST(TilingGeometry, CoversEveryPixelOfAnyAreaOnce) {
    for (const auto& row : enumTable<Command>())
        for (int width = 2; width <= 5; ++width)
            for (int height = 2; height <= 5; ++height) {
                const std::size_t count = tilingWindowCount(row.value);
                const auto places = tilingPlaces(row.value, {-3, 7, width, height}, count);
                int covered = 0;
                for (const auto& place : places) {
                    covered += place.width * place.height;
                    for (const auto& other : places)
                        EXPECT_EQ(place.intersects(other), &place == &other) << row.rawValue;
                }
                if (count > 1) {
                    EXPECT_EQ(covered, width * height) << row.rawValue << ' ' << width << 'x' << height;
                }
            }
}

TEST(TilingGeometry, CentersWithinTheArea) {
    EXPECT_EQ(centered({501, 301}, kArea), (WindowRectangle{260, 220, 501, 301}));
    EXPECT_EQ(centered({1001, 1}, kArea), (WindowRectangle{10, 370, 1001, 1}));
    EXPECT_EQ(centered({1002, 900}, kArea), kArea);
}

TEST(TilingGeometry, FitsWindowsThatDoNotTakeEverySize) {
    const WindowInsets frame{1, 2, 20, 5};
    const auto limited = [](auto change) {
        WindowSizeLimits limits;
        change(limits);
        return limits;
    };
    const struct {
        const char* description;
        WindowRectangle place;
        WindowInsets frame;
        WindowSizeLimits limits;
        WindowRectangle expected;
    } rows[] = {
        {"takes any size", kRight, frame, {}, kRight},
        {"draws its own shadow", kRight, {-10, -10, -8, -12}, {}, kRight},
        {"a terminal stays within its place",
         kRight,
         frame,
         limited([](auto& l) {
             l.base = {4, 4}, l.increment = {6, 13};
         }),
         {510, 20, 3 + 496, 25 + 667}},
        {"cells that fit to the pixel",
         {0, 0, 3 + 4 + 60, 25 + 4 + 130},
         frame,
         limited([](auto& l) {
             l.base = {4, 4}, l.increment = {6, 13};
         }),
         {10, 20, 67, 159}},
        {"cells do not go below the least size",
         kRight,
         frame,
         limited([](auto& l) {
             l.base = {0, 0}, l.increment = {400, 400}, l.minimum = {500, 300};
         }),
         {1011 - 803, 20, 803, 425}},
        {"no larger than it wants to be",
         kBottomRight,
         frame,
         limited([](auto& l) {
             l.maximum = {200, 100};
         }),
         {510, 370, 203, 125}},
        {"too wide for its half moves into the area",
         kRight,
         frame,
         limited([](auto& l) {
             l.minimum = {600, 100};
         }),
         {1011 - 603, 20, 603, 701}},
        {"too high for its half moves into the area",
         kBottom,
         frame,
         limited([](auto& l) {
             l.minimum = {1, 400};
         }),
         {10, 721 - 425, 1001, 425}},
        {"too large for the area keeps its title bar there",
         kBottomRight,
         frame,
         limited([](auto& l) {
             l.minimum = {2000, 2000};
         }),
         {10, 20, 2003, 2025}},
        {"a film no wider than its pictures",
         {10, 20, 1003, 225},
         frame,
         limited([](auto& l) { l.aspect = {.minimum = 1.5, .maximum = 2}; }),
         {10, 20, 403, 225}},
        {"a film no higher than its pictures",
         {10, 20, 303, 701},
         frame,
         limited([](auto& l) { l.aspect = {.minimum = 1.5, .maximum = 2}; }),
         {10, 20, 303, 225}},
        {"contradicting limits",
         kRight,
         frame,
         limited([](auto& l) {
             l.minimum = {300, 300}, l.maximum = {200, 200};
         }),
         {510, 20, 303, 325}},
        {"a place smaller than the frame", {10, 20, 2, 2}, frame, {}, {10, 20, 4, 26}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fitted(row.place, row.frame, row.limits, kArea), row.expected) << row.description;
}

}  // namespace
}  // namespace testing
}  // namespace kinesta
