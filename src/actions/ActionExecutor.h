#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "actions/ActionPorts.h"
#include "rules/GestureAction.h"

namespace kinesta {

/// Performs the action of a rule. Fire and forget: nothing is reported, nothing is tried again, and where the
/// accessibility permission is missing the person is asked for it and the action is dropped. Holds no state. Main
/// thread only.
class ActionExecutor {
  public:
    /// The most volume presses that one call posts. A slide over the whole pad makes 40 steps and no desktop has more
    /// than a few hundred between silence and its loudest, so nobody meets the bound; without it, an absurd number
    /// would keep the main thread posting for minutes.
    static constexpr std::int64_t kMaximumVolumePresses = 1000;

    explicit ActionExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Shows the cue if `showsActionCue`, with `visualCueMessage`, then attempts the action. `adjustmentSteps` is the
    /// signed number of volume steps of a slide (positive is louder), 0 for every other gesture. An action that is not
    /// configured, or a shell command while the settings forbid them, does and shows nothing.
    void execute(const GestureAction& action, std::int64_t adjustmentSteps, bool showsActionCue,
                 const std::optional<std::string>& visualCueMessage);

    /// Whether the permission is there. Asks nobody.
    bool hasAccessibilityPermission() { return m_ports.permission.isTrusted(); }

    /// Asks the person for the permission if it is missing; whether it is there.
    bool requestAccessibilityPermission() { return m_ports.permission.prompt(); }

  private:
    enum class FunctionKey { leftAlone, pressedAround };

    void perform(const GestureAction& action, std::int64_t adjustmentSteps);
    void performShortcut(const GestureAction& action);
    void clickMiddle();
    void closeWindow();
    void openFileOrFolder(const std::string& path);
    void launchApplication(const GestureAction& action);
    void runShellCommand(const GestureAction& action);
    void postKey(std::uint16_t code, std::uint64_t flags, FunctionKey functionKey);
    void postVolumeKeys(std::int64_t steps);

    /// The permission as an action meets it: asks for it if it is missing.
    bool isTrustedElsePrompts();

    ActionPorts m_ports;
};

}  // namespace kinesta
