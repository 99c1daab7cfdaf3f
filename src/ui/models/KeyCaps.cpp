#include "ui/models/KeyCaps.h"

#include <array>

#include "rules/ShortcutKey.h"

namespace kinesta {
namespace {

struct Modifier {
    ShortcutModifiers member;
    const char* sign;
    std::string KeyWords::*word;
};

}  // namespace

std::vector<KeyCap> modifierCaps(ShortcutModifiers modifiers, const KeyWords& words) {
    static constexpr std::array<Modifier, 5> kModifiers{{
        {ShortcutModifiers::function, "", &KeyWords::function},
        {ShortcutModifiers::control, "⌃", &KeyWords::control},
        {ShortcutModifiers::option, "⌥", &KeyWords::option},
        {ShortcutModifiers::shift, "⇧", &KeyWords::shift},
        {ShortcutModifiers::command, "⌘", &KeyWords::command},
    }};
    std::vector<KeyCap> caps;
    for (const Modifier& modifier : kModifiers)
        if (modifiers.contains(modifier.member))
            caps.push_back({modifier.sign, words.*modifier.word, words.standBesideSigns});
    return caps;
}

std::vector<KeyCap> shortcutCaps(const RecordedShortcut& shortcut, const KeyRecording& keyboard) {
    ShortcutModifiers modifiers = shortcut.modifiers;
    const std::string instead =
        modifiers.contains(ShortcutModifiers::function)
            ? keyboard.nameWithFunction(shortcut.keyCode, ShortcutKey::eventFlags(shortcut.keyCode, modifiers))
            : "";
    if (!instead.empty())
        modifiers.rawValue &= ~ShortcutModifiers::function.rawValue;
    auto caps = modifierCaps(modifiers, keyboard.words(modifiers));
    caps.push_back({"", instead.empty() ? ShortcutKey::shownName(shortcut.keyCode) : instead, true});
    return caps;
}

std::string inWords(const std::vector<KeyCap>& caps) {
    std::string text;
    for (const KeyCap& cap : caps)
        text += (text.empty() ? "" : "+") + cap.word;
    return text;
}

}  // namespace kinesta
