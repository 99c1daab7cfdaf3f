#include "platform/linux/windows/TilingPlan.h"

#include <gtest/gtest.h>

#include "platform/linux/windows/TilingRecord.h"

namespace kinesta::testing {
namespace {

using Command = WindowTilingMenuCommand;
using Ids = std::vector<EwmhWindowId>;

constexpr WindowRectangle kOnLeft{10, 10, 300, 200};

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
    EXPECT_EQ(participants(Command::bottomThreeUp, desktop), (Ids{5, 4, 3}));
    desktop.activeWindow = 2;  // A window manager may leave an active window below others.
    EXPECT_EQ(participants(Command::leftThreeUp, desktop), (Ids{2, 5, 4}));
    EXPECT_EQ(participants(Command::leftThreeUp, desktopOf(2)), (Ids{2, 1}));
    desktop.activeWindow = 0;
    EXPECT_EQ(participants(Command::fill, desktop), Ids{});
    desktop.activeWindow = 9;  // Active, but gone from the list.
    EXPECT_EQ(participants(Command::fill, desktop), Ids{});
}

TEST(TilingPlan, SkipsWindowsThatCannotBeTiled) {
    const struct {
        const char* description;
        void (*change)(EwmhWindow&);
        bool canJoin, canBeTiled, canBeCentered;
    } rows[] = {
        {"on all desktops", [](EwmhWindow& w) { w.desktop = EwmhWindow::kAllDesktops; }, true, true, true},
        {"mostly on another monitor", [](EwmhWindow& w) { w.frame.x = 491; }, false, true, true},
        {"mostly on this monitor", [](EwmhWindow& w) { w.frame.x = 489; }, true, true, true},
        {"a dialog", [](EwmhWindow& w) { w.type = EwmhWindowType::dialog; }, false, false, false},
        {"modal", [](EwmhWindow& w) { w.isModal = true; }, false, false, false},
        {"not movable", [](EwmhWindow& w) { w.mayMove = false; }, false, false, false},
        {"not resizable", [](EwmhWindow& w) { w.mayResize = false; }, false, false, true},
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
    dialog.isModal = true;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "no owner and no group";
    find.transientFor = owner.id;
    dialog.transientFor = find.id;
    EXPECT_EQ(desktop.modalDialogsOf(owner), (Ids{3})) << "by way of another dialog";
    find.transientFor = dialog.id;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "in a circle";
    dialog.transientFor = 77;
    EXPECT_EQ(desktop.modalDialogsOf(owner), Ids{}) << "of a window that is gone";
    owner.isModal = true;
    owner.group = dialog.group = 50;
    dialog.transientFor = 50;
    EXPECT_EQ(desktop.modalDialogsOf(owner), (Ids{3})) << "of the group, and not the window's own";
    dialog.group = 51;
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
    EXPECT_EQ(TilingRecord::decoded(record.encoded()), record);
    const auto encoded = record.encoded();
    const std::vector<std::uint32_t> good(encoded.begin(), encoded.end());
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
}  // namespace kinesta::testing
