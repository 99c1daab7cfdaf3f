#pragma once

#include <string_view>

#include "rules/GestureAction.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The global switch without which no shell command runs.
struct ShellCommandSettings {
    static constexpr std::string_view enabledKey = "shellCommandActionsEnabled.v1";

    static bool isEnabled(const UserDefaults& defaults);

    /// Whether the switch lets this action run: every action but a shell command, and that if the switch is on.
    static bool permits(const GestureAction& action, const UserDefaults& defaults);
};

}  // namespace kinesta
