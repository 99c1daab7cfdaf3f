#include "app/ActionObstacle.h"

#include <filesystem>

#include "actions/OpenTarget.h"
#include "actions/WindowTilingMenuCommand.h"
#include "rules/ShortcutKey.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::optional<Obstacle> obstacleToShortcut(const GestureAction& action, Desktop& desktop) {
    // Tiling posts no key, unless it fails.
    if (!action.keyCode || isTiling(action))
        return std::nullopt;
    return desktop.obstacleToKey(*action.keyCode, ShortcutKey::eventFlags(*action.keyCode, action.modifiers));
}

std::optional<Obstacle> obstacleToFile(const std::string& path, const char* remedy) {
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored))
        return std::nullopt;
    return Obstacle{translated("%1 does not exist.", {path}), translated(remedy)};
}

std::optional<Obstacle> obstacleToApplication(const std::string& path, Desktop& desktop) {
    if (auto missing = obstacleToFile(path, TRANSLATABLE("Choose the application again.")))
        return missing;
    return desktop.obstacleToLaunching(path);
}

}  // namespace

bool isTiling(const GestureAction& action) {
    return action.kind == ActionKind::keyboardShortcut && action.keyCode &&
           windowTilingMenuCommand(*action.keyCode, action.modifiers);
}

std::optional<Obstacle> obstacleTo(const GestureAction& action, Desktop& desktop) {
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            return obstacleToShortcut(action, desktop);
        case ActionKind::launchApplication:
            return obstacleToApplication(expandingTilde(action.value, desktop.homeFolders()), desktop);
        case ActionKind::openFileOrFolder:
            return obstacleToFile(standardizedPath(expandingTilde(action.value, desktop.homeFolders())),
                                  TRANSLATABLE("Choose the file or folder again."));
        case ActionKind::openURL:
            if (!isWebAddress(action.value))
                return Obstacle{translated("%1 is no address of a web page, and no other is opened.", {action.value}),
                                translated("Write the whole address, with http:// or https:// before it.")};
            break;
        default:
            break;
    }
    return std::nullopt;
}

}  // namespace kinesta
