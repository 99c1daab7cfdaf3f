#include "feedback/ActionCueContent.h"

#include <string_view>

#include "rules/ActionTarget.h"
#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::string labelOf(const GestureAction& action, std::int64_t adjustmentSteps) {
    const std::string_view value = trimmed(action.value);
    switch (action.kind) {
        case ActionKind::unconfigured:
            return translated("No action");
        case ActionKind::keyboardShortcut:
            return action.keyboardCueLabel().value_or(translated("Keyboard shortcut"));
        case ActionKind::middleClick:
            return translated("Middle click");
        case ActionKind::closeWindow:
            return translated("Close window");
        case ActionKind::openURL:
            return value.empty() ? translated("Address") : std::string(hostOf(value));
        case ActionKind::openFileOrFolder:
            return value.empty() ? translated("File or folder") : std::string(lastPart(value));
        case ActionKind::launchApplication:
            return value.empty() ? translated("Application") : std::string(applicationName(value));
        case ActionKind::shellCommand:
            return translated("Command");
        case ActionKind::toggleConfigurationWindow:
            return translated("Show or hide Kinesta");
        case ActionKind::disableAllRules:
            return translated("All rules disabled");
        case ActionKind::adjustVolume:
            if (adjustmentSteps == 0)
                return translated("Volume");
            return adjustmentSteps > 0 ? translated("Volume up") : translated("Volume down");
    }
    return {};
}

}  // namespace

ActionCueContent ActionCueContent::of(const GestureAction& action, std::int64_t adjustmentSteps,
                                      const std::optional<std::string>& message) {
    const bool hasMessage = message && !trimmed(*message).empty();
    return {hasMessage ? *message : labelOf(action, adjustmentSteps), action.kind};
}

}  // namespace kinesta
