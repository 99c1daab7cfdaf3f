#include "rules/ShortcutKey.h"

#include <algorithm>
#include <array>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::uint64_t kNumericPadFlag = 0x200000;

struct Modifier {
    ShortcutModifiers member;
    std::uint64_t eventFlag;
    std::string_view symbol;
};

// In label order.
constexpr std::array<Modifier, 5> kModifiers{{
    {ShortcutModifiers::function, 0x800000, "fn "},
    {ShortcutModifiers::control, 0x040000, "⌃"},
    {ShortcutModifiers::option, 0x080000, "⌥"},
    {ShortcutModifiers::shift, 0x020000, "⇧"},
    {ShortcutModifiers::command, 0x100000, "⌘"},
}};

constexpr bool isArrow(std::uint16_t keyCode) { return keyCode >= 123 && keyCode <= 126; }

}  // namespace

std::span<const ShortcutKey> ShortcutKey::choices() {
    // Deliberately without period, semicolon, apostrophe and backslash: unnamed keys are posted by their code in every
    // keyboard layout.
    static constexpr std::array<ShortcutKey, 52> kChoices{{
        {"A", 0},
        {"S", 1},
        {"D", 2},
        {"F", 3},
        {"H", 4},
        {"G", 5},
        {"Z", 6},
        {"X", 7},
        {"C", 8},
        {"V", 9},
        {"B", 11},
        {"Q", 12},
        {"W", 13},
        {"E", 14},
        {"R", 15},
        {"Y", 16},
        {"T", 17},
        {"1", 18},
        {"2", 19},
        {"3", 20},
        {"4", 21},
        {"6", 22},
        {"5", 23},
        {"=", 24},
        {"9", 25},
        {"7", 26},
        {"-", 27},
        {"8", 28},
        {"0", 29},
        {"O", 31},
        {"U", 32},
        {"I", 34},
        {"P", 35},
        {"L", 37},
        {"J", 38},
        {"K", 40},
        {"N", 45},
        {"M", 46},
        {"[", 33},
        {"]", 30},
        {",", 43},
        {"/", 44},
        {"`", 50},
        {TRANSLATABLE("Return"), 36},
        {TRANSLATABLE("Tab"), 48},
        {TRANSLATABLE("Space"), 49},
        {TRANSLATABLE("Delete"), 51},
        {TRANSLATABLE("Escape"), 53},
        {TRANSLATABLE("Left"), 123},
        {TRANSLATABLE("Right"), 124},
        {TRANSLATABLE("Down"), 125},
        {TRANSLATABLE("Up"), 126},
    }};
    return kChoices;
}

std::string ShortcutKey::nameFor(std::uint16_t keyCode) {
    const auto keys = choices();
    const auto key = std::find_if(keys.begin(), keys.end(), [&](const ShortcutKey& k) { return k.keyCode == keyCode; });
    return key == keys.end() ? "Key " + std::to_string(keyCode) : std::string(key->name);
}

std::string ShortcutKey::shownName(std::uint16_t keyCode) {
    const auto keys = choices();
    const auto key = std::ranges::find(keys, keyCode, &ShortcutKey::keyCode);
    return key == keys.end() ? translated("Key %1", {std::to_string(keyCode)}) : translated(key->name);
}

std::string ShortcutKey::label(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    std::string text;
    for (const Modifier& modifier : kModifiers)
        if (modifiers.contains(modifier.member))
            text += modifier.symbol;
    return text + shownName(keyCode);
}

std::uint64_t ShortcutKey::eventFlags(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    std::uint64_t flags = isArrow(keyCode) ? kNumericPadFlag : 0;
    for (const Modifier& modifier : kModifiers)
        if (modifiers.contains(modifier.member))
            flags |= modifier.eventFlag;
    return flags;
}

bool ShortcutKey::requiresFunctionKeyTransition(std::uint16_t keyCode, ShortcutModifiers modifiers) {
    return isArrow(keyCode) && modifiers.contains(ShortcutModifiers::function);
}

}  // namespace kinesta
