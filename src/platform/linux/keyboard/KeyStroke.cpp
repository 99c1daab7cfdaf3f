#include "platform/linux/keyboard/KeyStroke.h"

#include <linux/input-event-codes.h>

#include "platform/linux/keyboard/AnsiKeyCodes.h"

namespace kinesta {
namespace {

constexpr std::uint64_t kShiftFlag = 0x020000;
constexpr std::uint64_t kControlFlag = 0x040000;
constexpr std::uint64_t kOptionFlag = 0x080000;
constexpr std::uint64_t kCommandFlag = 0x100000;
constexpr std::uint64_t kFunctionFlag = 0x800000;

// What fn turns a key into. Keys that keyboards already report with fn applied stay as they are.
std::optional<std::uint16_t> withFunction(std::uint16_t code) {
    switch (code) {
        case KEY_LEFT:
            return KEY_HOME;
        case KEY_RIGHT:
            return KEY_END;
        case KEY_UP:
            return KEY_PAGEUP;
        case KEY_DOWN:
            return KEY_PAGEDOWN;
        case KEY_BACKSPACE:
            return KEY_DELETE;
        case KEY_ENTER:
            return KEY_KPENTER;
        case KEY_HOME:
        case KEY_END:
        case KEY_PAGEUP:
        case KEY_PAGEDOWN:
        case KEY_DELETE:
        case KEY_INSERT:
        case KEY_F11:
        case KEY_F12:
            return code;
        default:
            break;
    }
    if ((code >= KEY_F1 && code <= KEY_F10) || (code >= KEY_F13 && code <= KEY_F20))
        return code;
    return std::nullopt;
}

}  // namespace

std::optional<std::uint16_t> keyForShortcut(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    const auto code = evdevKeyCode(ansiKeyCode);
    if (!code || (flags & kFunctionFlag) == 0)
        return code;
    return withFunction(*code);
}

DesktopModifiers modifiersForFlags(std::uint64_t flags, LinuxActionSettings::CommandKey commandKey) {
    DesktopModifiers modifiers = 0;
    if ((flags & kShiftFlag) != 0)
        modifiers |= kShiftModifier;
    if ((flags & kControlFlag) != 0)
        modifiers |= kControlModifier;
    if ((flags & kOptionFlag) != 0)
        modifiers |= kAltModifier;
    // A shortcut with both ⌘ and ⌃ needs two keys. With one it would be another shortcut: ⌃⌘Q, which locks the screen,
    // would quit the program.
    const bool isSuper = commandKey == LinuxActionSettings::CommandKey::super || (flags & kControlFlag) != 0;
    if ((flags & kCommandFlag) != 0)
        modifiers |= isSuper ? kSuperModifier : kControlModifier;
    return modifiers;
}

KeyStroke strokeKey(std::uint16_t code, DesktopModifiers wanted, const ModifierSituation& situation) {
    KeyStroke stroke;
    InputTransitions again;
    DesktopModifiers inForce = 0;
    for (const ModifierKey& key : situation.held) {
        if ((key.modifiers & ~wanted) == 0) {
            inForce |= key.modifiers;
            continue;
        }
        stroke.down.push_back({key.code, KeyTransition::up});
        again.push_back({key.code, KeyTransition::down});
    }
    InputTransitions ours;
    for (const ModifierKey& key : situation.available)
        if ((wanted & key.modifiers) != 0 && (inForce & key.modifiers) == 0) {
            stroke.down.push_back({key.code, KeyTransition::down});
            ours.push_back({key.code, KeyTransition::up});
        }
    stroke.down.push_back({code, KeyTransition::down});
    stroke.up.push_back({code, KeyTransition::up});
    for (std::size_t left = ours.size(); left > 0; --left)
        stroke.up.push_back(ours[left - 1]);
    for (const InputTransition& transition : again)
        stroke.up.push_back(transition);
    return stroke;
}

}  // namespace kinesta
