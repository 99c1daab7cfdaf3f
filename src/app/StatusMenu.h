#pragma once

#include <string>
#include <vector>

namespace kinesta {

/// What a menu item of the status item asks for.
enum class StatusMenuCommand {
    none,
    toggleGestureRecognition,
    toggleLaunchAtLogin,
    toggleConfigurationWindow,
    checkForUpdates,
    quitApplication
};

struct StatusMenuItem {
    /// Empty for a separator.
    std::string title;
    StatusMenuCommand command = StatusMenuCommand::none;
    bool isEnabled = false;
    bool isChecked = false;
    /// Whether it shows a check mark while isChecked, and could.
    bool isCheckable = false;

    bool isSeparator() const { return title.empty(); }

    friend bool operator==(const StatusMenuItem&, const StatusMenuItem&) = default;
};

/// The menu of the status item, from top to bottom.
using StatusMenu = std::vector<StatusMenuItem>;

}  // namespace kinesta
