#include "cli/commands/Commands.h"

#include "cli/terminal/TextTable.h"
#include "rules/ActionKind.h"
#include "rules/CommonMacShortcut.h"
#include "rules/GestureKind.h"
#include "rules/ShortcutKey.h"
#include "support/Json.h"

namespace kinesta {
namespace {

template <typename T>
Json orNull(const std::optional<T>& value) {
    return value ? Json(*value) : Json(nullptr);
}

void printArray(const Console& console, const Json& array) { console.out << array.text(2) << '\n'; }

std::string orDash(const std::optional<int>& value) { return value ? std::to_string(*value) : "–"; }

}  // namespace

ExitStatus listGestures(const Console& console, OutputForm form) {
    Json array = Json::array();
    TextTable table({"GESTURE", "NAME", "FINGERS", "TIMES"});
    for (const auto& row : enumTable<GestureKind>()) {
        const auto pressure = physicalClickPressure(row.value);
        array.push_back({{"raw", row.rawValue},
                         {"title", row.title},
                         {"usesFingerCount", usesFingerCount(row.value)},
                         {"repetitionCount", orNull(repetitionCount(row.value))},
                         {"physicalClickCount", orNull(physicalClickCount(row.value))},
                         {"physicalClickPressure", pressure ? Json(rawValue(*pressure)) : Json(nullptr)}});
        if (isConfigured(row.value))
            table.add({std::string(row.rawValue), std::string(row.title), usesFingerCount(row.value) ? "chosen" : "–",
                       orDash(repetitionCount(row.value))});
    }
    if (form == OutputForm::json)
        printArray(console, array);
    else
        table.print(console);
    return ExitStatus::success;
}

ExitStatus listActions(const Console& console, OutputForm form) {
    Json array = Json::array();
    TextTable table({"ACTION", "NAME"});
    for (const auto& row : enumTable<ActionKind>()) {
        array.push_back({{"raw", row.rawValue}, {"title", row.title}});
        if (row.value != ActionKind::unconfigured)
            table.add({std::string(row.rawValue), std::string(row.title)});
    }
    if (form == OutputForm::json)
        printArray(console, array);
    else
        table.print(console);
    return ExitStatus::success;
}

ExitStatus listShortcuts(const Console& console, OutputForm form) {
    Json array = Json::array();
    TextTable table({"CATEGORY", "SHORTCUT", "KEYS", "KEY CODE", "MODIFIERS"});
    for (const CommonMacShortcut& preset : CommonMacShortcut::all()) {
        const std::string label = ShortcutKey::label(preset.keyCode, preset.modifiers);
        array.push_back({{"category", preset.category},
                         {"title", preset.title},
                         {"keyCode", preset.keyCode},
                         {"modifiers", preset.modifiers.rawValue},
                         {"minimumMacOSMajorVersion", orNull(preset.minimumMacOSMajorVersion)},
                         {"label", label}});
        table.add({std::string(preset.category), std::string(preset.title), label, std::to_string(preset.keyCode),
                   std::to_string(preset.modifiers.rawValue)});
    }
    if (form == OutputForm::json)
        printArray(console, array);
    else
        table.print(console);
    return ExitStatus::success;
}

}  // namespace kinesta
