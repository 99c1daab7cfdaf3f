#include "ui/models/KeyCaps.h"

#include <algorithm>
#include <array>

#include "rules/ShortcutKey.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

struct Modifier {
    ShortcutModifiers member;
    const char* sign;
    std::string KeyWords::*word;
};

struct NamedKey {
    std::uint16_t keyCode;
    const char* name;
};

/// Keys that shortcuts name by their code, as they have the same place in every layout.
constexpr std::array<NamedKey, 6> kNamedKeys{{
    {76, TRANSLATABLE("Enter")},
    {115, TRANSLATABLE("Home")},
    {116, TRANSLATABLE("Page Up")},
    {117, TRANSLATABLE("Forward Delete")},
    {119, TRANSLATABLE("End")},
    {121, TRANSLATABLE("Page Down")},
}};

/// F1 to F20.
constexpr std::array<std::uint16_t, 20> kFunctionKeys{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                      103, 111, 105, 107, 113, 106, 64, 79,  80,  90};

}  // namespace

std::string printedName(std::uint16_t keyCode) {
    if (const auto* key = std::ranges::find(kNamedKeys, keyCode, &NamedKey::keyCode); key != kNamedKeys.end())
        return translated(key->name);
    const auto* const found = std::ranges::find(kFunctionKeys, keyCode);
    return found == kFunctionKeys.end() ? "" : "F" + std::to_string(found - kFunctionKeys.begin() + 1);
}

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
    std::string name =
        modifiers.contains(ShortcutModifiers::function)
            ? keyboard.nameWithFunction(shortcut.keyCode, ShortcutKey::eventFlags(shortcut.keyCode, modifiers))
            : "";
    if (!name.empty())
        modifiers.rawValue &= ~ShortcutModifiers::function.rawValue;
    else
        name = printedName(shortcut.keyCode);
    auto caps = modifierCaps(modifiers, keyboard.words(modifiers));
    caps.push_back({"", name.empty() ? ShortcutKey::shownName(shortcut.keyCode) : name, true});
    return caps;
}

std::string inWords(const std::vector<KeyCap>& caps) {
    std::string text;
    for (const KeyCap& cap : caps)
        text += (text.empty() ? "" : "+") + cap.word;
    return text;
}

}  // namespace kinesta
