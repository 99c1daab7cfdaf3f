#include "rules/CommonMacShortcut.h"

#include <algorithm>
#include <array>

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
        {"Editing", "Cut", 7, kCommand, {}},
        {"Editing", "Copy", 8, kCommand, {}},
        {"Editing", "Paste", 9, kCommand, {}},
        {"Editing", "Paste and Match Style", 9, kCommand | kOption | kShift, {}},
        {"Editing", "Undo", 6, kCommand, {}},
        {"Editing", "Redo", 6, kCommand | kShift, {}},
        {"Editing", "Select All", 0, kCommand, {}},
        {"Editing", "Find", 3, kCommand, {}},
        {"Editing", "Find Next", 5, kCommand, {}},
        {"Editing", "Save", 1, kCommand, {}},
        {"Editing", "Open", 31, kCommand, {}},
        {"Editing", "Print", 35, kCommand, {}},
        {"Windows & Apps", "New Window", 45, kCommand, {}},
        {"Windows & Apps", "Close Window", 13, kCommand, {}},
        {"Windows & Apps", "Close All Windows", 13, kCommand | kOption, {}},
        {"Windows & Apps", "Minimize Window", 46, kCommand, {}},
        {"Windows & Apps", "Minimize All Windows", 46, kCommand | kOption, {}},
        {"Windows & Apps", "Hide App", 4, kCommand, {}},
        {"Windows & Apps", "Hide Other Apps", 4, kCommand | kOption, {}},
        {"Windows & Apps", "Quit App", 12, kCommand, {}},
        {"Windows & Apps", "App Settings", 43, kCommand, {}},
        {"Windows & Apps", "Toggle Full Screen", 3, kCommand | kControl, {}},
        {"Windows & Apps", "Switch App", 48, kCommand, {}},
        {"Windows & Apps", "Next App Window", 50, kCommand, {}},
        {"Window Tiling", "Fill Desktop", 3, kControl | kFn, 15},
        {"Window Tiling", "Center Window", 8, kControl | kFn, 15},
        {"Window Tiling", "Tile Left Half", 123, kControl | kFn, 15},
        {"Window Tiling", "Tile Right Half", 124, kControl | kFn, 15},
        {"Window Tiling", "Tile Top Half", 126, kControl | kFn, 15},
        {"Window Tiling", "Tile Bottom Half", 125, kControl | kFn, 15},
        {"Window Tiling", "Return to Previous Size", 15, kControl | kFn, 15},
        {"Window Tiling", "Arrange Left & Right", 123, kControl | kShift | kFn, 15},
        {"Window Tiling", "Arrange Right & Left", 124, kControl | kShift | kFn, 15},
        {"Window Tiling", "Arrange Top & Bottom", 126, kControl | kShift | kFn, 15},
        {"Window Tiling", "Arrange Bottom & Top", 125, kControl | kShift | kFn, 15},
        {"Window Tiling", "Left & Two Quarters", 123, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", "Right & Two Quarters", 124, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", "Top & Two Quarters", 126, kOption | kControl | kShift | kFn, 15},
        {"Window Tiling", "Bottom & Two Quarters", 125, kOption | kControl | kShift | kFn, 15},
        {"System", "Spotlight", 49, kCommand, {}},
        {"System", "Character Viewer", 49, kCommand | kControl, {}},
        {"System", "Character Viewer (Fn/Globe)", 14, kFn, {}},
        {"System", "Quick Note", 12, kFn, {}},
        {"System", "Show Desktop", 4, kFn, {}},
        {"System", "Show or Hide Dock", 0, kFn, {}},
        {"System", "Control Center", 8, kFn, {}},
        {"System", "Notification Center", 45, kFn, {}},
        {"System", "Start or Stop Dictation", 2, kFn, {}},
        {"System", "Apps or Launchpad", 0, kShift | kFn, {}},
        {"System", "Lock Screen", 12, kCommand | kControl, {}},
        {"System", "Force Quit", 53, kCommand | kOption, {}},
        {"System", "Screenshot Screen", 20, kCommand | kShift, {}},
        {"System", "Screenshot Selection", 21, kCommand | kShift, {}},
        {"System", "Screenshot Controls", 23, kCommand | kShift, {}},
        {"System", "Mission Control", 126, kControl, {}},
        {"System", "App Expo", 125, kControl, {}},
        {"Navigation", "Forward Delete", 51, kFn, {}},
        {"Navigation", "Page Up", 126, kFn, {}},
        {"Navigation", "Page Down", 125, kFn, {}},
        {"Navigation", "Home", 123, kFn, {}},
        {"Navigation", "End", 124, kFn, {}},
        {"Finder", "Quick Look", 49, {}, {}},
        {"Finder", "New Folder", 45, kCommand | kShift, {}},
        {"Finder", "Move to Trash", 51, kCommand, {}},
        {"Finder", "Eject Selected Volume", 14, kCommand, {}},
        {"Finder", "Go to Folder", 5, kCommand | kShift, {}},
        {"Finder", "Open Home Folder", 4, kCommand | kShift, {}},
        {"Finder", "Open Downloads", 37, kCommand | kOption, {}},
        {"Finder", "Open Documents", 31, kCommand | kShift, {}},
        {"Finder", "Open Recents", 3, kCommand | kShift, {}},
        {"Finder", "Open iCloud Drive", 34, kCommand | kShift, {}},
        {"Finder", "Open AirDrop", 15, kCommand | kShift, {}},
        {"Finder", "Open Utilities", 32, kCommand | kShift, {}},
        {"Finder", "Duplicate", 2, kCommand, {}},
        {"Finder", "Get Info", 34, kCommand, {}},
        {"Web & Tabs", "New Tab", 17, kCommand, {}},
        {"Web & Tabs", "Reopen Closed Tab", 17, kCommand | kShift, {}},
        {"Web & Tabs", "Reload", 15, kCommand, {}},
        {"Web & Tabs", "Focus Address Bar", 37, kCommand, {}},
        {"Web & Tabs", "Back", 33, kCommand, {}},
        {"Web & Tabs", "Forward", 30, kCommand, {}},
        {"Web & Tabs", "Next Tab", 48, kControl, {}},
        {"Web & Tabs", "Previous Tab", 48, kControl | kShift, {}},
    }};
    return kAll;
}

std::span<const std::string_view> CommonMacShortcut::categoryOrder() {
    static constexpr std::array<std::string_view, 7> kOrder{"Editing",    "Windows & Apps", "Window Tiling", "System",
                                                            "Navigation", "Finder",         "Web & Tabs"};
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
