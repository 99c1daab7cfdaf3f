#include "rules/ShellCommandSettings.h"

namespace kinesta {

bool ShellCommandSettings::isEnabled(const UserDefaults& defaults) {
    return defaults.boolean(enabledKey).value_or(false);
}

bool ShellCommandSettings::permits(const GestureAction& action, const UserDefaults& defaults) {
    return action.kind != ActionKind::shellCommand || isEnabled(defaults);
}

}  // namespace kinesta
