#include "ui/models/ActionWords.h"

#include "support/Text.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::string_view kPlain = "http://";
constexpr std::string_view kSecure = "https://";

std::string_view englishSentence(ActionKind kind) {
    switch (kind) {
        case ActionKind::unconfigured:
            return TRANSLATABLE("Choose what the gesture does.");
        case ActionKind::keyboardShortcut:
            return TRANSLATABLE("Presses the keys of a shortcut in the frontmost app.");
        case ActionKind::middleClick:
            return TRANSLATABLE("Clicks the middle mouse button where the pointer is.");
        case ActionKind::closeWindow:
            return TRANSLATABLE(
                "Closes the focused window of the frontmost app using its close button. Requires Accessibility "
                "permission. Sends no keyboard shortcut. Apps without an accessible, enabled close button are left "
                "unchanged; save dialogs remain under your control.");
        case ActionKind::openURL:
            return TRANSLATABLE("Opens a web page in your browser.");
        case ActionKind::openFileOrFolder:
            return TRANSLATABLE("Opens a file or folder with the app that it belongs to.");
        case ActionKind::launchApplication:
            return TRANSLATABLE("Starts an app, with arguments if you add some.");
        case ActionKind::shellCommand:
            return TRANSLATABLE("Runs a command in your shell, without a terminal.");
        case ActionKind::toggleConfigurationWindow:
            return TRANSLATABLE("Shows this window, or hides it.");
        case ActionKind::disableAllRules:
            return TRANSLATABLE("Switches every rule off, this one too.");
        case ActionKind::adjustVolume:
            return TRANSLATABLE("An edge slide always adjusts the volume.");
    }
    return {};
}

}  // namespace

std::string actionSentence(ActionKind kind) { return translated(englishSentence(kind)); }

std::optional<std::string> addressProblem(std::string_view address, bool canBeOpened, AddressState state) {
    const std::string text = lowerCased(address);
    if (canBeOpened || trimmed(text).empty())
        return std::nullopt;
    if (state == AddressState::beingTyped && (kPlain.starts_with(text) || kSecure.starts_with(text)))
        return std::nullopt;
    if (text.starts_with(kPlain) || text.starts_with(kSecure))
        return translated("An address has no blanks, quotes or backslashes: write them as %20, %22 or %5C.");
    return translated("Kinesta opens web pages only: begin the address with http:// or https://.");
}

}  // namespace kinesta
