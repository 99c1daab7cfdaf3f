#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "rules/ActionKind.h"
#include "rules/ShortcutModifiers.h"

namespace kinesta {

/// What a rule does when its gesture is recognized. A default-made action is blank.
struct GestureAction {
    ActionKind kind = ActionKind::unconfigured;
    /// ANSI virtual key code of a keyboard shortcut.
    std::optional<std::uint16_t> keyCode;
    ShortcutModifiers modifiers;
    /// The URL, the file or folder, the application's path, or the shell command, by kind; empty otherwise.
    std::string value;
    std::optional<std::vector<std::string>> applicationArguments;
    /// Shown in the action cue instead of the rule's name.
    std::optional<std::string> customCueLabel;
    /// Whether the person has acknowledged the risk of this shell command.
    std::optional<bool> shellCommandAcknowledged;

    /// Whether everything that the kind needs is there.
    bool isConfigured() const;

    /// What the action does, in a few words for a person.
    std::string summary() const;

    /// The arguments of an application launch, without the empty ones; none for other kinds.
    std::vector<std::string> resolvedApplicationArguments() const;

    /// The custom cue label without blanks around it, if anything is left of it.
    std::optional<std::string> resolvedCustomCueLabel() const;

    /// What the cue says of a keyboard shortcut: the preset's title, the custom label, or the shortcut itself.
    std::optional<std::string> keyboardCueLabel() const;

    bool isShellCommandAcknowledged() const { return shellCommandAcknowledged.value_or(false); }

    friend bool operator==(const GestureAction&, const GestureAction&) = default;
};

}  // namespace kinesta
