#include "actions/ActionExecutor.h"

#include <algorithm>

#include "actions/KeyboardLayoutResolver.h"
#include "actions/OpenTarget.h"
#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"
#include "rules/ShellCommandSettings.h"
#include "rules/ShortcutKey.h"
#include "support/Text.h"

namespace kinesta {
namespace {

constexpr std::uint16_t kFunctionKeyCode = 63;

void post(SynthesizedEvent* event) {
    if (event)
        event->post();
}

}  // namespace

void ActionExecutor::execute(const GestureAction& action, std::int64_t adjustmentSteps, bool showsActionCue,
                             const std::optional<std::string>& visualCueMessage) {
    if (!action.isConfigured() || !ShellCommandSettings::permits(action, m_ports.defaults))
        return;
    // Before the attempt: the cue also appears if the permission is missing.
    if (showsActionCue)
        m_ports.cue.show(action, adjustmentSteps, visualCueMessage);
    perform(action, adjustmentSteps);
}

void ActionExecutor::perform(const GestureAction& action, std::int64_t adjustmentSteps) {
    switch (action.kind) {
        case ActionKind::unconfigured:
            return;
        case ActionKind::keyboardShortcut:
            return performShortcut(action);
        case ActionKind::middleClick:
            return clickMiddle();
        case ActionKind::closeWindow:
            return closeWindow();
        case ActionKind::openURL:
            // Web pages only: another scheme could start any program registered for it.
            if (isWebAddress(action.value))
                m_ports.workspace.openURL(action.value);
            return;
        case ActionKind::openFileOrFolder:
            return openFileOrFolder(action.value);
        case ActionKind::launchApplication:
            return launchApplication(action);
        case ActionKind::shellCommand:
            return runShellCommand(action);
        case ActionKind::toggleConfigurationWindow:
        case ActionKind::disableAllRules:
            return m_ports.notifications.post(kAppActionRequested, action.kind);
        case ActionKind::adjustVolume:
            if (adjustmentSteps != 0)
                postVolumeKeys(adjustmentSteps);
            return;
    }
}

void ActionExecutor::performShortcut(const GestureAction& action) {
    if (!action.keyCode)
        return;
    const auto tilingCommand = windowTilingMenuCommand(*action.keyCode, action.modifiers);
    if (tilingCommand && WindowTilingExecutor(m_ports).execute(*tilingCommand))
        return;
    const std::uint16_t code =
        KeyboardLayoutResolver(m_ports.keyboardLayout).keyCode(ShortcutKey::nameFor(*action.keyCode), *action.keyCode);
    postKey(code, ShortcutKey::eventFlags(code, action.modifiers),
            ShortcutKey::requiresFunctionKeyTransition(code, action.modifiers));
}

void ActionExecutor::clickMiddle() {
    if (!isTrustedElsePrompts())
        return;
    const auto source = m_ports.events.makeSource();
    const auto location = m_ports.events.probePointerLocation(source.get());
    if (!location)
        return;
    const auto press = m_ports.events.makeCenterButtonEvent(source.get(), KeyTransition::down, *location);
    const auto release = m_ports.events.makeCenterButtonEvent(source.get(), KeyTransition::up, *location);
    for (SynthesizedEvent* event : {press.get(), release.get()})
        if (event)
            event->setClickState(1);
    post(press.get());
    post(release.get());
}

void ActionExecutor::closeWindow() {
    if (isTrustedElsePrompts())
        WindowCloseExecutor(m_ports).execute();
}

void ActionExecutor::openFileOrFolder(const std::string& path) {
    m_ports.workspace.openFile(standardizedPath(expandingTilde(path, m_ports.homeFolders)));
}

void ActionExecutor::launchApplication(const GestureAction& action) {
    // Not standardized: the path as chosen may matter to the application.
    m_ports.workspace.launchApplication(expandingTilde(action.value, m_ports.homeFolders),
                                        action.resolvedApplicationArguments());
}

void ActionExecutor::runShellCommand(const GestureAction& action) {
    // Checked again: an unacknowledged command must never run.
    if (!action.isShellCommandAcknowledged() || trimmed(action.value).empty())
        return;
    // A login shell, so that the user's usual PATH applies.
    m_ports.processes.launch("/bin/zsh", {"-lc", action.value});
}

void ActionExecutor::postKey(std::uint16_t code, std::uint64_t flags, bool postsFunctionKeyTransition) {
    if (!isTrustedElsePrompts())
        return;
    EventSynthesizer& events = m_ports.events;
    const auto source = events.makeSource();
    const auto functionDown =
        postsFunctionKeyTransition ? events.makeKeyEvent(source.get(), kFunctionKeyCode, KeyTransition::down) : nullptr;
    const auto keyDown = events.makeKeyEvent(source.get(), code, KeyTransition::down);
    const auto keyUp = events.makeKeyEvent(source.get(), code, KeyTransition::up);
    const auto functionUp =
        postsFunctionKeyTransition ? events.makeKeyEvent(source.get(), kFunctionKeyCode, KeyTransition::up) : nullptr;
    // The fn events keep the default flags of the source.
    for (SynthesizedEvent* event : {keyDown.get(), keyUp.get()})
        if (event)
            event->setFlags(flags);
    for (SynthesizedEvent* event : {functionDown.get(), keyDown.get(), keyUp.get(), functionUp.get()})
        post(event);
}

void ActionExecutor::postVolumeKeys(std::int64_t steps) {
    if (!isTrustedElsePrompts())
        return;
    const std::int64_t key = steps > 0 ? SystemDefinedEvent::kSoundUp : SystemDefinedEvent::kSoundDown;
    // Bounded before the sign is dropped: the lowest integer has no positive counterpart.
    const std::int64_t bounded = std::clamp(steps, -kMaximumVolumePresses, kMaximumVolumePresses);
    const std::int64_t presses = bounded < 0 ? -bounded : bounded;
    for (std::int64_t i = 0; i < presses; ++i) {
        for (const std::int64_t state : {SystemDefinedEvent::kPressed, SystemDefinedEvent::kReleased}) {
            const SystemDefinedEvent event{.timestamp = m_ports.clock.uptime(),
                                           .subtype = SystemDefinedEvent::kAuxiliaryControlButtons,
                                           .data1 = key << 16 | state << 8,
                                           .data2 = -1};
            post(m_ports.events.makeSystemDefinedEvent(event).get());
        }
    }
}

bool ActionExecutor::isTrustedElsePrompts() {
    if (m_ports.permission.isTrusted())
        return true;
    requestAccessibilityPermission();
    return false;
}

}  // namespace kinesta
