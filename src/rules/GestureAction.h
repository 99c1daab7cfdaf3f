#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "rules/ActionKind.h"
#include "rules/ShortcutModifiers.h"

namespace kinesta {

/// What a rule does when its gesture is recognized. Default-constructed, it is blank.
struct GestureAction {
    ActionKind kind = ActionKind::unconfigured;
    /// ANSI virtual key code of a keyboard shortcut.
    std::optional<std::uint16_t> keyCode;
    ShortcutModifiers modifiers;
    /// URL, path of the file, folder or application, or shell command, by kind. Otherwise empty.
    std::string value;
    std::optional<std::vector<std::string>> applicationArguments;
    /// Shown in the action cue instead of the rule's name.
    std::optional<std::string> customCueLabel;
    /// Whether the user has acknowledged the risk of this shell command.
    std::optional<bool> shellCommandAcknowledged;

    /// Whether all that the kind needs is set.
    bool isConfigured() const;

    /// What the action does, in a few words for the user.
    std::string summary() const;

    /// The non-empty arguments of an application launch. Empty for other kinds.
    std::vector<std::string> resolvedApplicationArguments() const;

    /// The custom cue label, trimmed, if it is not blank.
    std::optional<std::string> resolvedCustomCueLabel() const;

    /// The cue text of a keyboard shortcut: the preset's title, else the custom label, else the keys.
    std::optional<std::string> keyboardCueLabel() const;

    bool isShellCommandAcknowledged() const { return shellCommandAcknowledged.value_or(false); }

    friend bool operator==(const GestureAction&, const GestureAction&) = default;
};

}  // namespace kinesta
