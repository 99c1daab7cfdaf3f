#include "cli/ActionObstacle.h"

#include <unistd.h>

#include <filesystem>

#include "actions/OpenTarget.h"
#include "actions/WindowTilingMenuCommand.h"
#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/process/ExecutableSearch.h"
#include "rules/ShortcutKey.h"

namespace kinesta {
namespace {

std::optional<Obstacle> obstacleToShortcut(const GestureAction& action) {
    // Tiling takes no key, unless it fails.
    if (!action.keyCode || windowTilingMenuCommand(*action.keyCode, action.modifiers))
        return std::nullopt;
    return obstacleToKey(*action.keyCode, ShortcutKey::eventFlags(*action.keyCode, action.modifiers));
}

bool exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

std::optional<Obstacle> obstacleToApplication(const std::string& path) {
    if (!exists(path))
        return Obstacle{path + " does not exist.", "Choose the application again."};
    if (path.ends_with(".desktop")) {
        const auto entry = DesktopEntry::read(path, "C");
        if (!entry)
            return Obstacle{entry.error().message, ""};
        if (const std::string& program = entry->command.front();
            program.starts_with('/') ? ::access(program.c_str(), X_OK) != 0 : !isInSearchPath(program))
            return Obstacle{path + " starts " + program + ", which is not there.",
                            "Install that program, or choose another application."};
    } else if (std::filesystem::is_directory(path) || ::access(path.c_str(), X_OK) != 0) {
        return Obstacle{path + " is not a program that you may start.",
                        "Choose a program or a desktop file (*.desktop)."};
    }
    return std::nullopt;
}

}  // namespace

std::optional<Obstacle> obstacleTo(const GestureAction& action, const HomeFolders& homes) {
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            return obstacleToShortcut(action);
        case ActionKind::launchApplication:
            return obstacleToApplication(expandingTilde(action.value, homes));
        case ActionKind::openFileOrFolder: {
            const std::string path = standardizedPath(expandingTilde(action.value, homes));
            if (!exists(path))
                return Obstacle{path + " does not exist.", "Choose the file or folder again."};
            break;
        }
        case ActionKind::openURL:
            if (!isWebAddress(action.value))
                return Obstacle{action.value + " is no address of a web page, and no other is opened.",
                                "Write the whole address, with http:// or https:// before it."};
            break;
        case ActionKind::toggleConfigurationWindow:
            return Obstacle{"There is no configuration window yet.", "Choose another action."};
        default:
            break;
    }
    return std::nullopt;
}

}  // namespace kinesta
