#include "rules/GestureAction.h"

#include "rules/CommonMacShortcut.h"
#include "rules/ShortcutKey.h"
#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::string_view kNotConfigured = TRANSLATABLE("Not configured");

}  // namespace

bool GestureAction::isConfigured() const {
    switch (kind) {
        case ActionKind::unconfigured:
            return false;
        case ActionKind::keyboardShortcut:
            return keyCode.has_value();
        case ActionKind::middleClick:
        case ActionKind::closeWindow:
        case ActionKind::toggleConfigurationWindow:
        case ActionKind::disableAllRules:
        case ActionKind::adjustVolume:
            return true;
        case ActionKind::openURL:
        case ActionKind::openFileOrFolder:
        case ActionKind::launchApplication:
            return !trimmed(value).empty();
        case ActionKind::shellCommand:
            return isShellCommandAcknowledged() && !trimmed(value).empty();
    }
    return false;
}

std::string GestureAction::summary() const {
    switch (kind) {
        case ActionKind::unconfigured:
            return translated("No action");
        case ActionKind::keyboardShortcut:
            return keyCode ? ShortcutKey::label(*keyCode, modifiers) : translated(kNotConfigured);
        case ActionKind::middleClick:
            return translated("Middle click");
        case ActionKind::closeWindow:
            return translated("Close window");
        case ActionKind::openURL:
        case ActionKind::openFileOrFolder:
        case ActionKind::launchApplication:
        case ActionKind::shellCommand:
            // Not trimmed: shows what was typed, even blanks, which do not configure the action.
            return value.empty() ? translated(kNotConfigured) : value;
        case ActionKind::toggleConfigurationWindow:
            return translated("Show or hide Kinesta");
        case ActionKind::disableAllRules:
            return translated("Disable every rule");
        case ActionKind::adjustVolume:
            return translated("Slide up/down to adjust volume");
    }
    return {};
}

std::vector<std::string> GestureAction::resolvedApplicationArguments() const {
    std::vector<std::string> arguments;
    if (kind == ActionKind::launchApplication && applicationArguments)
        arguments = *applicationArguments;
    std::erase(arguments, std::string());
    return arguments;
}

std::optional<std::string> GestureAction::resolvedCustomCueLabel() const {
    const std::string_view label = customCueLabel ? trimmed(*customCueLabel) : std::string_view();
    return label.empty() ? std::nullopt : std::optional<std::string>(label);
}

std::optional<std::string> GestureAction::keyboardCueLabel() const {
    if (kind != ActionKind::keyboardShortcut || !keyCode)
        return std::nullopt;
    if (const auto title = CommonMacShortcut::actionTitle(*keyCode, modifiers))
        return translated(*title);
    if (auto label = resolvedCustomCueLabel())
        return label;
    return ShortcutKey::label(*keyCode, modifiers);
}

}  // namespace kinesta
