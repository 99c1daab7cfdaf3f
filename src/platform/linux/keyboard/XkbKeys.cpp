#include "platform/linux/keyboard/XkbKeys.h"

#include <linux/input-event-codes.h>

#include "platform/linux/keyboard/AnsiKeyCodes.h"

namespace kinesta {
namespace {

struct NamedModifier {
    const char* xkbName;
    DesktopModifiers modifier;
    std::uint16_t usualKey;
};

constexpr std::array<NamedModifier, 4> kModifiers{{
    {XKB_MOD_NAME_SHIFT, kShiftModifier, KEY_LEFTSHIFT},
    {XKB_MOD_NAME_CTRL, kControlModifier, KEY_LEFTCTRL},
    {XKB_MOD_NAME_ALT, kAltModifier, KEY_LEFTALT},
    {XKB_MOD_NAME_LOGO, kSuperModifier, KEY_LEFTMETA},
}};

XkbStatePointer stateInGroup(xkb_keymap* keymap, std::uint32_t group) {
    XkbStatePointer state(xkb_state_new(keymap));
    if (state)
        xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, group);
    return state;
}

DesktopModifiers named(xkb_keymap* keymap, xkb_mod_mask_t mask) {
    DesktopModifiers modifiers = 0;
    for (const NamedModifier& row : kModifiers) {
        const xkb_mod_index_t index = xkb_keymap_mod_get_index(keymap, row.xkbName);
        if (index == XKB_MOD_INVALID || (mask >> index & 1U) == 0)
            continue;
        modifiers |= row.modifier;
        mask &= ~(xkb_mod_mask_t{1} << index);
    }
    return mask == 0 ? modifiers : static_cast<DesktopModifiers>(modifiers | kOtherModifier);
}

}  // namespace

KeyboardLayoutCharacters charactersOfGroup(xkb_keymap* keymap, std::uint32_t group) {
    KeyboardLayoutCharacters characters;
    const XkbStatePointer state = stateInGroup(keymap, group);
    if (!state)
        return characters;
    for (std::size_t ansi = 0; ansi < characters.size(); ++ansi) {
        const auto code = evdevKeyCode(static_cast<std::uint16_t>(ansi));
        if (!code)
            continue;
        std::array<char, 16> text{};
        // Keysyms that are not characters, such as dead keys, give an empty text.
        xkb_keysym_to_utf8(xkb_state_key_get_one_sym(state.get(), *code + std::uint32_t{kFirstXkbKeycode}), text.data(),
                           text.size());
        characters[ansi] = text.data();
    }
    return characters;
}

std::vector<KeyboardLayoutCharacters> charactersOfGroups(xkb_keymap* keymap) {
    std::vector<KeyboardLayoutCharacters> groups;
    for (xkb_layout_index_t group = 0; group < xkb_keymap_num_layouts(keymap); ++group)
        groups.push_back(charactersOfGroup(keymap, group));
    return groups;
}

std::array<DesktopModifiers, 256> modifiersByKey(xkb_keymap* keymap, std::uint32_t group) {
    std::array<DesktopModifiers, 256> result{};
    const XkbStatePointer state = stateInGroup(keymap, group);
    if (!state)
        return result;
    // Press and release each key in the keymap's state to see what it does: keys that people have swapped, such as Caps
    // Lock and Ctrl, then count as what they are now.
    for (std::uint16_t code = 0; code + kFirstXkbKeycode < 256; ++code) {
        const xkb_keycode_t keycode = code + std::uint32_t{kFirstXkbKeycode};
        xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
        const xkb_mod_mask_t whileDown = xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_DEPRESSED);
        xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
        const auto kept =
            static_cast<xkb_state_component>(XKB_STATE_MODS_LOCKED | XKB_STATE_MODS_LATCHED | XKB_STATE_LAYOUT_LATCHED);
        const bool keepsSomething = xkb_state_serialize_mods(state.get(), kept) != 0;
        if (keepsSomething || xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_LOCKED) != group)
            xkb_state_update_mask(state.get(), 0, 0, 0, 0, 0, group);
        if (!keepsSomething)
            result[code] = named(keymap, whileDown);
    }
    return result;
}

InlineVector<ModifierKey, 4> chosenModifierKeys(const std::array<DesktopModifiers, 256>& modifiersByKey) {
    InlineVector<ModifierKey, 4> keys;
    for (const NamedModifier& row : kModifiers) {
        std::uint16_t chosen = row.usualKey;
        for (std::uint16_t code = 0; modifiersByKey[chosen] != row.modifier && code < modifiersByKey.size(); ++code)
            if (modifiersByKey[code] == row.modifier)
                chosen = code;
        if (modifiersByKey[chosen] == row.modifier)
            keys.push_back({chosen, row.modifier});
    }
    return keys;
}

}  // namespace kinesta
