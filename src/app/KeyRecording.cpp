#include "app/KeyRecording.h"

#include <algorithm>
#include <vector>

#include "actions/KeyboardLayoutResolver.h"
#include "rules/ShortcutKey.h"
#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {

Result<RecordedShortcut> shortcutOf(const NativeKey& key, HeldModifiers held, KeyRecording& keyboard) {
    const auto problem = keyboard.read(held).problem;
    if (!problem.empty())
        return Error{problem};
    const auto keyCode = keyboard.keyCodeOf(key);
    if (!keyCode)
        return keyCode.error();
    const ShortcutModifiers modifiers = keyboard.modifiersWith(*keyCode, held);

    // The most telling first: the key that fn turns into this one, the character that it types, its place.
    std::vector<RecordedShortcut> candidates;
    if (const auto under = keyboard.underFunction(*keyCode))
        candidates.push_back({*under, modifiers | ShortcutModifiers::function});
    if (const auto characters = keyboard.layout().charactersWithoutModifiers())
        for (const ShortcutKey& choice : ShortcutKey::choices())
            if (lowerCased(choice.name) == lowerCased((*characters)[*keyCode]))
                candidates.push_back({choice.keyCode, modifiers});
    candidates.push_back({*keyCode, modifiers});

    const auto found = std::ranges::find_if(candidates, [&](const RecordedShortcut& candidate) {
        const auto posted = KeyboardLayoutResolver(keyboard.layout())
                                .keyCode(ShortcutKey::nameFor(candidate.keyCode), candidate.keyCode);
        return keyboard.presses(posted, ShortcutKey::eventFlags(posted, candidate.modifiers), key, held);
    });
    if (found == candidates.end())
        return Error{translated("With this keyboard layout no shortcut can press this key. Press another one.")};
    return *found;
}

}  // namespace kinesta
