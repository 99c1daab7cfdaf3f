#include "platform/linux/TilingPlan.h"

#include <gtest/gtest.h>

#include "platform/linux/TilingRecord.h"

namespace kinesta::testing {
namespace {

using Command = WindowTilingMenuCommand;
using Ids = std::vector<EwmhWindowId>;

constexpr WindowRectangle kOnLeft{10, 10, 300, 200};
constexpr WindowRectangle kOnRight{700, 10, 300, 200};

/// Two monitors and the windows 1, 2, 3 … from the lowest to the highest, all on the left one; the highest is active.
EwmhSnapshot desktopOf(std::size_t count) {
    EwmhSnapshot desktop;
    desktop.monitors = {{{0, 0, 640, 800}, {0, 0, 640, 780}}, {{640, 0, 640, 800}, {640, 0, 640, 800}}};
    desktop.currentDesktop = 1;
    for (EwmhWindowId id = 1; id <= count; ++id) {
        EwmhWindow window;
        window.id = id;
        window.desktop = 1;
        window.frame = kOnLeft;
        desktop.windows.push_back(window);
    }
    desktop.activeWindow = static_cast<EwmhWindowId>(count);
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
    EXPECT_EQ(participants(Command::fill, desktop), (Ids{5}));
    EXPECT_EQ(participants(Command::leftAndRight, desktop), (Ids{5, 4}));
    EXPECT_EQ(participants(Command::bottomThreeUp, desktop), (Ids{5, 4, 3}));
    desktop.activeWindow = 2;  // A window manager may leave an active window below others.
    EXPECT_EQ(participants(Command::leftThreeUp, desktop), (Ids{2, 5, 4}));
    EXPECT_EQ(participants(Command::leftThreeUp, desktopOf(2)), (Ids{2, 1}));
    EXPECT_EQ(participants(Command::leftThreeUp, desktopOf(1)), (Ids{1}));
    desktop.activeWindow = 0;
    EXPECT_EQ(participants(Command::fill, desktop), Ids{});
    desktop.activeWindow = 9;  // Active, but gone from the list.
    EXPECT_EQ(participants(Command::fill, desktop), Ids{});
}

TEST(TilingPlan, PassesOverWindowsThatAreNotToBeTiled) {
    const struct {
        const char* description;
        void (*change)(EwmhWindow&);
        bool canJoin, canBeTiled, canBeCentered;
    } rows[] = {
        {"an ordinary window", [](EwmhWindow&) {}, true, true, true},
        {"on all desktops", [](EwmhWindow& w) { w.desktop = EwmhWindow::kAllDesktops; }, true, true, true},
        {"on another desktop", [](EwmhWindow& w) { w.desktop = 0; }, false, false, false},
        {"on another monitor", [](EwmhWindow& w) { w.frame = kOnRight; }, false, true, true},
        {"mostly on another monitor",
         [](EwmhWindow& w) {
             w.frame = {489, 10, 303, 200};
         },
         false, true, true},
        {"mostly on this monitor",
         [](EwmhWindow& w) {
             w.frame = {488, 10, 303, 200};
         },
         true, true, true},
        {"maximized", [](EwmhWindow& w) { w.isMaximizedVertically = true; }, true, true, true},
        {"a dialog", [](EwmhWindow& w) { w.type = EwmhWindowType::dialog; }, false, false, false},
        {"a dock", [](EwmhWindow& w) { w.type = EwmhWindowType::other; }, false, false, false},
        {"modal", [](EwmhWindow& w) { w.isModal = true; }, false, false, false},
        {"minimized", [](EwmhWindow& w) { w.isHidden = true; }, false, false, false},
        {"not movable", [](EwmhWindow& w) { w.mayMove = false; }, false, false, false},
        {"not resizable", [](EwmhWindow& w) { w.mayResize = false; }, false, false, true},
        {"of one size",
         [](EwmhWindow& w) {
             w.limits.minimum = w.limits.maximum = {5, 5};
         },
         false, false, true},
        {"of one width", [](EwmhWindow& w) { w.limits.minimum.width = w.limits.maximum.width = 5; }, true, true, true},
        {"on no task bar", [](EwmhWindow& w) { w.skipsTaskbar = true; }, false, true, true},
    };
    for (const auto& row : rows) {
        auto desktop = desktopOf(3);
        row.change(desktop.windows[1]);
        EXPECT_EQ(participants(Command::topAndBottom, desktop), row.canJoin ? (Ids{3, 2}) : (Ids{3, 1}))
            << row.description;
        desktop = desktopOf(1);
        row.change(desktop.windows[0]);
        for (const auto& command : enumTable<Command>())
            EXPECT_EQ(canTile(command.value, desktop),
                      command.value == Command::center ? row.canBeCentered : row.canBeTiled)
                << row.description << ' ' << command.rawValue;
    }
}

TEST(EwmhSnapshot, FindsTheModalDialogsOfAWindow) {
    auto desktop = desktopOf(5);
    desktop.root = 99;
    auto& owner = desktop.windows[0];
    auto& find = desktop.windows[1];
    auto& dialog = desktop.windows[2];
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{});
    dialog.isModal = true;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "of nobody, in no group";
    find.transientFor = owner.id;
    dialog.transientFor = find.id;
    EXPECT_EQ(desktop.modalDialogsOf(owner), (Ids{3})) << "by way of another dialog";
    find.transientFor = dialog.id;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "in a circle";
    dialog.transientFor = 77;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "of a window that is gone";
    owner.isModal = true;
    owner.group = dialog.group = 50;
    for (const EwmhWindowId wholeGroup : {0U, 99U, 50U}) {
        dialog.transientFor = wholeGroup;
        EXPECT_EQ(desktop.modalDialogsOf(owner), (Ids{3})) << "of the group, and not the window's own";
    }
    dialog.group = 51;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "of another group";
    desktop.windows[4] = desktop.windows[3] = dialog;
    desktop.windows[3].id = 4;
    desktop.windows[4].id = 5;
    desktop.windows[4].transientFor = desktop.windows[3].transientFor = owner.id;
    EXPECT_EQ(desktop.modalDialogsOf(owner), (Ids{4, 5}));
}

TEST(TilingRecord, ComesBackFromTheNumbersOfAProperty) {
    EwmhWindow before;
    before.isMaximizedHorizontally = true;
    EwmhWindow restored;
    restored.frame = {-5, 20, 300, 200};
    auto record = TilingRecord::of(before, restored);
    record.tiledFrame = {0, 0, 640, 780};
    for (const bool flag : {false, true}) {
        record.wasFullscreen = record.wasMaximizedVertically = flag;
        EXPECT_EQ(TilingRecord::decoded(record.encoded()), record);
    }
    const auto good = record.encoded();
    for (std::size_t i = 0; i < 8; ++i)
        for (const std::uint32_t bad : {32768U, 0x7FFFFFFFU, 0x80000000U, i % 4 < 2 ? 0xFFFF7FFFU : 0U}) {
            auto numbers = good;
            numbers[i] = bad;
            EXPECT_EQ(TilingRecord::decoded(numbers), std::nullopt) << i << ' ' << bad;
        }
    for (const std::size_t size : {0U, 8U, 10U}) {
        auto numbers = good;
        numbers.resize(size);
        EXPECT_EQ(TilingRecord::decoded(numbers), std::nullopt) << size;
    }
}

TEST(TilingRecord, KnowsAWindowThatAPersonHasMoved) {
    TilingRecord record;
    record.tiledFrame = {100, 100, 500, 400};
    EwmhWindow window;
    window.limits.increment = {6, 13};
    const struct {
        WindowRectangle frame;
        bool isWhereItWasPut;
    } rows[] = {
        {{100, 100, 500, 400}, true},  {{114, 100, 500, 400}, true}, {{115, 100, 500, 400}, false},
        {{100, 79, 500, 400}, true},   {{100, 78, 500, 400}, false}, {{100, 100, 486, 400}, true},
        {{100, 100, 485, 400}, false}, {{100, 100, 500, 421}, true}, {{100, 100, 500, 422}, false},
    };
    for (const auto& row : rows) {
        window.frame = row.frame;
        EXPECT_EQ(record.describes(window), row.isWhereItWasPut)
            << row.frame.x << ' ' << row.frame.y << ' ' << row.frame.width << ' ' << row.frame.height;
    }
}

}  // namespace
}  // namespace kinesta::testing
