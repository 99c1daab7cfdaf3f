#include "feedback/ActionCueContent.h"

#include <string_view>

#include "rules/ActionTarget.h"
#include "support/Text.h"

namespace kinesta {
namespace {

std::string labelOf(const GestureAction& action, std::int64_t adjustmentSteps) {
    const std::string_view value = trimmed(action.value);
    switch (action.kind) {
        case ActionKind::unconfigured:
            return "No action";
        case ActionKind::keyboardShortcut:
            return action.keyboardCueLabel().value_or("Keyboard shortcut");
        case ActionKind::middleClick:
            return "Middle click";
        case ActionKind::closeWindow:
            return "Close window";
        case ActionKind::openURL:
            return value.empty() ? "Address" : std::string(hostOf(value));
        case ActionKind::openFileOrFolder:
            return value.empty() ? "File or folder" : std::string(lastPart(value));
        case ActionKind::launchApplication:
            return value.empty() ? "Application" : std::string(applicationName(value));
        case ActionKind::shellCommand:
            return "Command";
        case ActionKind::toggleConfigurationWindow:
            return "Show or hide Kinesta";
        case ActionKind::disableAllRules:
            return "All rules disabled";
        case ActionKind::adjustVolume:
            if (adjustmentSteps == 0)
                return "Volume";
            return adjustmentSteps > 0 ? "Volume up" : "Volume down";
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
