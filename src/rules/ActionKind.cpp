#include "rules/ActionKind.h"

#include <array>

namespace kinesta {

template <>
std::span<const EnumRow<ActionKind>> enumTable() {
    using enum ActionKind;
    static constexpr std::array<EnumRow<ActionKind>, 11> kTable{{
        {unconfigured, "unconfigured", "Choose an action…"},
        {keyboardShortcut, "keyboardShortcut", "Keyboard shortcut"},
        {middleClick, "middleClick", "Middle mouse click"},
        {closeWindow, "closeWindow", "Close window"},
        {openURL, "openURL", "Open URL"},
        {openFileOrFolder, "openFileOrFolder", "Open file or folder"},
        {launchApplication, "launchApplication", "Launch application"},
        {shellCommand, "shellCommand", "Run shell command"},
        {toggleConfigurationWindow, "toggleConfigurationWindow", "Toggle configuration window"},
        {disableAllRules, "disableAllRules", "Disable all rules"},
        {adjustVolume, "adjustVolume", "Adjust system volume"},
    }};
    return kTable;
}

}  // namespace kinesta
