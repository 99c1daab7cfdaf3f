#include "platform/linux/keyboard/KeyStroke.h"

namespace kinesta {
namespace {

constexpr std::uint64_t kShiftFlag = 0x020000;
constexpr std::uint64_t kControlFlag = 0x040000;
constexpr std::uint64_t kOptionFlag = 0x080000;
constexpr std::uint64_t kCommandFlag = 0x100000;

}  // namespace

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
