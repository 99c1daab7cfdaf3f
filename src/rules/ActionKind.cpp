#include "rules/ActionKind.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {

template <>
std::span<const EnumRow<ActionKind>> enumTable() {
    using enum ActionKind;
    static constexpr std::array<EnumRow<ActionKind>, 11> kTable{{
        {unconfigured, "unconfigured", TRANSLATABLE("Choose an action…")},
        {keyboardShortcut, "keyboardShortcut", TRANSLATABLE("Keyboard shortcut")},
        {middleClick, "middleClick", TRANSLATABLE("Middle mouse click")},
        {closeWindow, "closeWindow", TRANSLATABLE("Close window")},
        {openURL, "openURL", TRANSLATABLE("Open URL")},
        {openFileOrFolder, "openFileOrFolder", TRANSLATABLE("Open file or folder")},
        {launchApplication, "launchApplication", TRANSLATABLE("Launch application")},
        {shellCommand, "shellCommand", TRANSLATABLE("Run shell command")},
        {toggleConfigurationWindow, "toggleConfigurationWindow", TRANSLATABLE("Toggle configuration window")},
        {disableAllRules, "disableAllRules", TRANSLATABLE("Disable all rules")},
        {adjustVolume, "adjustVolume", TRANSLATABLE("Adjust system volume")},
    }};
    return kTable;
}

}  // namespace kinesta
