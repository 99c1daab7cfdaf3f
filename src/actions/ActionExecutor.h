#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "actions/ActionPorts.h"
#include "rules/GestureAction.h"

namespace kinesta {

/// Performs the action of a rule. Reports nothing and never retries. If the accessibility permission is missing,
/// prompts for it and drops the action. Stateless. Main thread only.
class ActionExecutor {
  public:
    /// Limit of volume key presses per call, far above real use: a slide over the whole pad makes 40 steps and desktops
    /// have at most a few hundred. Without it, an absurd count would block the main thread for minutes.
    static constexpr std::int64_t kMaximumVolumePresses = 1000;

    explicit ActionExecutor(const ActionPorts& ports) : m_ports(ports) {}

    /// Shows the cue with `visualCueMessage` if `showsActionCue`, then attempts the action. `adjustmentSteps` is the
    /// signed number of volume steps of a slide (positive is louder), 0 for every other gesture. Does nothing if the
    /// action is not configured, or is a shell command while these are switched off.
    void execute(const GestureAction& action, std::int64_t adjustmentSteps, bool showsActionCue,
                 const std::optional<std::string>& visualCueMessage);

    /// Never prompts.
    bool hasAccessibilityPermission() { return m_ports.permission.isTrusted(); }

    /// Prompts the user if the permission is missing. Whether it is granted.
    bool requestAccessibilityPermission() { return m_ports.permission.prompt(); }

  private:
    void perform(const GestureAction& action, std::int64_t adjustmentSteps);
    void performShortcut(const GestureAction& action);
    void clickMiddle();
    void closeWindow();
    void openFileOrFolder(const std::string& path);
    void launchApplication(const GestureAction& action);
    void runShellCommand(const GestureAction& action);
    void postKey(std::uint16_t code, std::uint64_t flags, bool postsFunctionKeyTransition);
    void postVolumeKeys(std::int64_t steps);

    /// Prompts if the permission is missing.
    bool isTrustedElsePrompts();

    ActionPorts m_ports;
};

}  // namespace kinesta
