#pragma once

#include "support/EnumTable.h"

namespace kinesta {

/// What an action does.
enum class ActionKind {
    unconfigured,
    keyboardShortcut,
    middleClick,
    closeWindow,
    openURL,
    openFileOrFolder,
    launchApplication,
    shellCommand,
    toggleConfigurationWindow,
    disableAllRules,
    adjustVolume,
};

template <>
std::span<const EnumRow<ActionKind>> enumTable();

}  // namespace kinesta
