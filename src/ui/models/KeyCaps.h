#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/KeyRecording.h"

namespace kinesta {

/// What is printed on a key. At least one of the texts is not empty.
struct KeyCap {
    /// Such as ⇧.
    std::string sign;
    std::string word;
    /// Whether the word stands beside the sign. Without a sign, and where no font has the sign, it stands alone.
    bool showsWord = true;

    friend bool operator==(const KeyCap&, const KeyCap&) = default;
};

/// In the order of labels: fn, ⌃, ⌥, ⇧, ⌘.
std::vector<KeyCap> modifierCaps(ShortcutModifiers modifiers, const KeyWords& words);

/// The modifiers, then the key.
std::vector<KeyCap> shortcutCaps(const RecordedShortcut& shortcut, const KeyRecording& keyboard);

/// What is printed on a key that ShortcutKey has no name for, such as "F5"; empty if that depends on the layout.
std::string printedName(std::uint16_t keyCode);

/// "Ctrl+Shift+T": for people who hear it.
std::string inWords(const std::vector<KeyCap>& caps);

}  // namespace kinesta
