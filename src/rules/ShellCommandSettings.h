#pragma once

#include <string_view>

#include "rules/GestureAction.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The global switch that allows shell commands to run.
struct ShellCommandSettings {
    static constexpr std::string_view enabledKey = "shellCommandActionsEnabled.v1";

    static bool isEnabled(const UserDefaults& defaults) { return defaults.boolean(enabledKey).value_or(false); }

    /// Whether the switch allows this action. It concerns shell commands only.
    static bool permits(const GestureAction& action, const UserDefaults& defaults) {
        return action.kind != ActionKind::shellCommand || isEnabled(defaults);
    }
};

}  // namespace kinesta
