#include "rules/CommonMacShortcut.h"

#include <algorithm>
#include <array>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr ShortcutModifiers kCommand = ShortcutModifiers::command;
constexpr ShortcutModifiers kOption = ShortcutModifiers::option;
constexpr ShortcutModifiers kControl = ShortcutModifiers::control;
constexpr ShortcutModifiers kShift = ShortcutModifiers::shift;
constexpr ShortcutModifiers kFn = ShortcutModifiers::function;

}  // namespace

std::span<const CommonMacShortcut> CommonMacShortcut::all() {
    static constexpr std::array<CommonMacShortcut, 83> kAll{{
        {"Editing", TRANSLATABLE("Cut"), 7, kCommand, {}},
        {"Editing", TRANSLATABLE("Copy"), 8, kCommand, {}},
        {"Editing", TRANSLATABLE("Paste"), 9, kCommand, {}},
        {"Editing", TRANSLATABLE("Paste and Match Style"), 9, kCommand | kOption | kShift, {}},
        {"Editing", TRANSLATABLE("Undo"), 6, kCommand, {}},
        {"Editing", TRANSLATABLE("Redo"), 6, kCommand | kShift, {}},
        {"Editing", TRANSLATABLE("Select All"), 0, kCommand, {}},
        {"Editing", TRANSLATABLE("Find"), 3, kCommand, {}},
        {"Editing", TRANSLATABLE("Find Next"), 5, kCommand, {}},
        {"Editing", TRANSLATABLE("Save"), 1, kCommand, {}},
        {"Editing", TRANSLATABLE("Open"), 31, kCommand, {}},
        {"Editing", TRANSLATABLE("Print"), 35, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("New Window"), 45, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Close Window"), 13, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Close All Windows"), 13, kCommand | kOption, {}},
        {"Windows & Apps", TRANSLATABLE("Minimize Window"), 46, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Minimize All Windows"), 46, kCommand | kOption, {}},
        {"Windows & Apps", TRANSLATABLE("Hide App"), 4, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Hide Other Apps"), 4, kCommand | kOption, {}},
        {"Windows & Apps", TRANSLATABLE("Quit App"), 12, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("App Settings"), 43, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Toggle Full Screen"), 3, kCommand | kControl, {}},
        {"Windows & Apps", TRANSLATABLE("Switch App"), 48, kCommand, {}},
        {"Windows & Apps", TRANSLATABLE("Next App Window"), 50, kCommand, {}},
        {"Window Tiling", TRANSLATABLE("Fill Desktop"), 3, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Center Window"), 8, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Tile Left Half"), 123, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Tile Right Half"), 124, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Tile Top Half"), 126, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Tile Bottom Half"), 125, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Return to Previous Size"), 15, kControl | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Arrange Left & Right"), 123, kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Arrange Right & Left"), 124, kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Arrange Top & Bottom"), 126, kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Arrange Bottom & Top"), 125, kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Left & Two Quarters"), 123, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Right & Two Quarters"), 124, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Top & Two Quarters"), 126, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", TRANSLATABLE("Bottom & Two Quarters"), 125, kOption | kControl | kShift | kFn, 15},
        {"System", TRANSLATABLE("Spotlight"), 49, kCommand, {}},
        {"System", TRANSLATABLE("Character Viewer"), 49, kCommand | kControl, {}},
        {"System", TRANSLATABLE("Character Viewer (Fn/Globe)"), 14, kFn, {}},
        {"System", TRANSLATABLE("Quick Note"), 12, kFn, {}},
        {"System", TRANSLATABLE("Show Desktop"), 4, kFn, {}},
        {"System", TRANSLATABLE("Show or Hide Dock"), 0, kFn, {}},
        {"System", TRANSLATABLE("Control Center"), 8, kFn, {}},
        {"System", TRANSLATABLE("Notification Center"), 45, kFn, {}},
        {"System", TRANSLATABLE("Start or Stop Dictation"), 2, kFn, {}},
        {"System", TRANSLATABLE("Apps or Launchpad"), 0, kShift | kFn, {}},
        {"System", TRANSLATABLE("Lock Screen"), 12, kCommand | kControl, {}},
        {"System", TRANSLATABLE("Force Quit"), 53, kCommand | kOption, {}},
        {"System", TRANSLATABLE("Screenshot Screen"), 20, kCommand | kShift, {}},
        {"System", TRANSLATABLE("Screenshot Selection"), 21, kCommand | kShift, {}},
        {"System", TRANSLATABLE("Screenshot Controls"), 23, kCommand | kShift, {}},
        {"System", TRANSLATABLE("Mission Control"), 126, kControl, {}},
        {"System", TRANSLATABLE("App Expo"), 125, kControl, {}},
        {"Navigation", TRANSLATABLE("Forward Delete"), 51, kFn, {}},
        {"Navigation", TRANSLATABLE("Page Up"), 126, kFn, {}},
        {"Navigation", TRANSLATABLE("Page Down"), 125, kFn, {}},
        {"Navigation", TRANSLATABLE("Home"), 123, kFn, {}},
        {"Navigation", TRANSLATABLE("End"), 124, kFn, {}},
        {"Finder", TRANSLATABLE("Quick Look"), 49, {}, {}},
        {"Finder", TRANSLATABLE("New Folder"), 45, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Move to Trash"), 51, kCommand, {}},
        {"Finder", TRANSLATABLE("Eject Selected Volume"), 14, kCommand, {}},
        {"Finder", TRANSLATABLE("Go to Folder"), 5, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open Home Folder"), 4, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open Downloads"), 37, kCommand | kOption, {}},
        {"Finder", TRANSLATABLE("Open Documents"), 31, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open Recents"), 3, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open iCloud Drive"), 34, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open AirDrop"), 15, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Open Utilities"), 32, kCommand | kShift, {}},
        {"Finder", TRANSLATABLE("Duplicate"), 2, kCommand, {}},
        {"Finder", TRANSLATABLE("Get Info"), 34, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("New Tab"), 17, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("Reopen Closed Tab"), 17, kCommand | kShift, {}},
        {"Web & Tabs", TRANSLATABLE("Reload"), 15, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("Focus Address Bar"), 37, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("Back"), 33, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("Forward"), 30, kCommand, {}},
        {"Web & Tabs", TRANSLATABLE("Next Tab"), 48, kControl, {}},
        {"Web & Tabs", TRANSLATABLE("Previous Tab"), 48, kControl | kShift, {}},
    }};
    return kAll;
}

std::span<const std::string_view> CommonMacShortcut::categoryOrder() {
    static constexpr std::array<std::string_view, 7> kOrder{
        TRANSLATABLE("Editing"),   TRANSLATABLE("Windows & Apps"), TRANSLATABLE("Window Tiling"),
        TRANSLATABLE("System"),    TRANSLATABLE("Navigation"),     TRANSLATABLE("Finder"),
        TRANSLATABLE("Web & Tabs")};
    return kOrder;
}

std::vector<std::string_view> CommonMacShortcut::availableCategoryOrder(const SystemVersion& current) {
    std::vector<std::string_view> categories;
    for (const std::string_view category : categoryOrder()) {
        const bool hasPreset = std::any_of(all().begin(), all().end(), [&](const CommonMacShortcut& preset) {
            return preset.category == category && preset.isAvailableOnCurrentSystem(current);
        });
        if (hasPreset)
            categories.push_back(category);
    }
    return categories;
}

std::optional<std::string_view> CommonMacShortcut::actionTitle(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    for (const CommonMacShortcut& preset : all())
        if (preset.keyCode == keyCode && preset.modifiers == modifiers)
            return preset.title;
    return std::nullopt;
}

std::string CommonMacShortcut::id() const {
    std::string text(category);
    text.append("/").append(title).append("/").append(std::to_string(keyCode));
    text.append("/").append(std::to_string(modifiers.rawValue));
    if (minimumMacOSMajorVersion)
        text.append("/").append(std::to_string(*minimumMacOSMajorVersion));
    return text;
}

bool CommonMacShortcut::isAvailable(int macOSMajorVersion) const {
    return !minimumMacOSMajorVersion || macOSMajorVersion >= *minimumMacOSMajorVersion;
}

}  // namespace kinesta
