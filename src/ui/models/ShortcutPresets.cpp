#include "ui/models/ShortcutPresets.h"

#include "app/Desktop.h"
#include "rules/CommonMacShortcut.h"
#include "rules/ShortcutKey.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

/// Kinesta itself does what these say; their keys need not mean anything.
constexpr std::string_view kTiling = "Window Tiling";

bool isPostable(const CommonMacShortcut& preset, Desktop& desktop) {
    return !desktop.obstacleToKey(preset.keyCode, ShortcutKey::eventFlags(preset.keyCode, preset.modifiers));
}

}  // namespace

std::vector<ShortcutPresetGroup> shortcutPresets(Desktop& desktop) {
    const SystemVersion& version = desktop.actionPorts(desktop.defaults()).systemVersion;
    const KeyRecording& keyboard = desktop.keyRecording();
    const bool tiles = desktop.tilesWindows();
    std::vector<ShortcutPresetGroup> groups;
    for (const std::string_view category : CommonMacShortcut::availableCategoryOrder(version)) {
        ShortcutPresetGroup group{translated(category), {}};
        for (const CommonMacShortcut& preset : CommonMacShortcut::all())
            if (preset.category == category && preset.isAvailableOnCurrentSystem(version) &&
                (category == kTiling ? tiles : isPostable(preset, desktop) && keyboard.works(preset)))
                group.presets.push_back({translated(preset.title),
                                         ShortcutKey::label(preset.keyCode, preset.modifiers),
                                         {preset.keyCode, preset.modifiers}});
        if (!group.presets.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

RecordedShortcut withKey(std::uint16_t keyCode, ShortcutModifiers present, Desktop& desktop) {
    if (desktop.obstacleToKey(keyCode, ShortcutKey::eventFlags(keyCode, present)))
        present.rawValue &= ~ShortcutModifiers::function.rawValue;
    return {keyCode, present};
}

}  // namespace kinesta
