#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/KeyRecording.h"

namespace kinesta {

class Desktop;

struct ShortcutPreset {
    std::string title;
    std::string label;
    RecordedShortcut shortcut;
};

struct ShortcutPresetGroup {
    std::string title;
    std::vector<ShortcutPreset> presets;
};

/// The well-known shortcuts that work here, by category. May ask the window manager.
std::vector<ShortcutPresetGroup> shortcutPresets(Desktop& desktop);

/// The present shortcut with another key; without fn where fn means nothing with that key here.
RecordedShortcut withKey(std::uint16_t keyCode, ShortcutModifiers present, Desktop& desktop);

}  // namespace kinesta
