#include "app/SystemCheck.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "app/ActionObstacle.h"
#include "recognition/MultitouchService.h"
#include "recognition/StoredRecognitionSettings.h"
#include "rules/GestureDescription.h"
#include "rules/ShellCommandSettings.h"
#include "rules/ShortcutKey.h"

namespace kinesta {
namespace {

constexpr const char* kReadWhileOff = " Kinesta also reads it while this desktop has it switched off.";

bool needs(const GestureAction& action, DesktopCapability capability) {
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            if (isTiling(action))
                return capability == DesktopCapability::windows || capability == DesktopCapability::sendInput;
            return capability == DesktopCapability::sendInput;
        case ActionKind::middleClick:
        case ActionKind::adjustVolume:
            return capability == DesktopCapability::sendInput;
        case ActionKind::closeWindow:  // only allowed to programs that may send keys
            return capability == DesktopCapability::windows || capability == DesktopCapability::sendInput;
        case ActionKind::openURL:
        case ActionKind::openFileOrFolder:
            return capability == DesktopCapability::open;
        case ActionKind::unconfigured:
        case ActionKind::launchApplication:
        case ActionKind::shellCommand:
        case ActionKind::toggleConfigurationWindow:
        case ActionKind::disableAllRules:
            break;
    }
    return false;
}

using Rules = std::vector<GestureRule>;

bool anyEnabled(const Rules& rules, const std::function<bool(const GestureRule&)>& needs) {
    return std::ranges::any_of(rules, [&](const GestureRule& rule) { return rule.isEnabled && needs(rule); });
}

std::string inQuotes(const GestureRule& rule) {
    return "Rule “" + describeTrigger(rule) + "  →  " + describeConsequence(rule) + "”";
}

void addTrackpad(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    const ConnectedTrackpads trackpads = desktop.connectedTrackpads();
    const ConnectedTrackpad* chosen = trackpads.chosen();
    const bool isNeeded = anyEnabled(rules, [](const GestureRule&) { return true; });
    if (chosen == nullptr)
        findings.push_back(
            {"Touchpad", false, trackpads.whenNoneIsChosen.why, trackpads.whenNoneIsChosen.remedy, isNeeded});
    else
        findings.push_back({"Touchpad", chosen->problem.empty(),
                            chosen->problem.empty()
                                ? chosen->name + " at " + chosen->path + "." + (chosen->mayBeOff ? kReadWhileOff : "")
                                : chosen->problem,
                            "", isNeeded});
    if (!storedGestureEnabled(desktop.defaults()))
        findings.push_back({"Gesture recognition", false, "It is switched off in the settings.",
                            "To switch it on " + desktop.howToSet(MultitouchService::enabledStorageKey, "true"),
                            isNeeded});
    const bool isRead = chosen != nullptr && chosen->axes;
    const bool canTellPressure = isRead && chosen->canTellPressure;
    findings.push_back({"Force Click", canTellPressure,
                        !isRead           ? "Not known while no touchpad can be read."
                        : canTellPressure ? "The touchpad reports pressure."
                                          : "Impossible: the touchpad cannot tell pressure.",
                        canTellPressure || !isRead ? "" : "Bind those rules to a physical click of any pressure.",
                        anyEnabled(rules, [](const GestureRule& rule) {
                            return physicalClickPressure(rule.gesture) == PhysicalClickPressure::force;
                        })});
    if (!isRead || chosen->fingers == 0)
        return;
    for (const GestureRule& rule : rules)
        if (rule.isEnabled && usesFingerCount(rule.gesture) && rule.fingerCount.value_or(0) > chosen->fingers)
            findings.push_back({inQuotes(rule), false,
                                "The touchpad reports at most " + std::to_string(chosen->fingers) + " fingers at once.",
                                "Choose a gesture with fewer fingers.", true});
}

void addSession(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    for (DesktopFinding& finding : desktop.findings()) {
        const bool isNeeded =
            anyEnabled(rules, [&](const GestureRule& rule) { return needs(rule.action, finding.capability); });
        findings.push_back(
            {std::move(finding.what), finding.works, std::move(finding.why), std::move(finding.remedy), isNeeded});
    }
}

void addShellCommands(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    const bool isOn = ShellCommandSettings::isEnabled(desktop.defaults());
    findings.push_back(
        {"Shell commands", isOn, isOn ? "Switched on." : "Switched off, as they are at first.",
         isOn ? ""
              : "If you trust every rule that runs one: " + desktop.howToSet(ShellCommandSettings::enabledKey, "true"),
         anyEnabled(rules, [](const GestureRule& rule) { return rule.action.kind == ActionKind::shellCommand; })});
}

std::optional<Obstacle> obstacleToLetter(const GestureAction& action, Desktop& desktop) {
    if (action.kind != ActionKind::keyboardShortcut || !action.keyCode || isTiling(action))
        return std::nullopt;
    const std::string name = ShortcutKey::nameFor(*action.keyCode);
    if (desktop.typesLetterOf(*action.keyCode, name))
        return std::nullopt;
    return Obstacle{"Your keyboard layout has no letter " + name +
                        " where the shortcut would press it: as from the keyboard itself, programs do not take it.",
                    "Add a layout with Latin letters, such as us, to those that you switch between."};
}

void addObstacles(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    for (const GestureRule& rule : rules) {
        if (!rule.isEnabled)
            continue;
        auto obstacle = obstacleTo(rule.action, desktop);
        if (!obstacle)
            obstacle = obstacleToLetter(rule.action, desktop);
        if (obstacle)
            findings.push_back({inQuotes(rule), false, obstacle->why, obstacle->remedy, true});
    }
}

}  // namespace

std::vector<SystemFinding> checkSystem(Desktop& desktop, const std::vector<GestureRule>& rules) {
    std::vector<SystemFinding> findings;
    addTrackpad(findings, rules, desktop);
    addSession(findings, rules, desktop);
    addShellCommands(findings, rules, desktop);
    addObstacles(findings, rules, desktop);
    return findings;
}

}  // namespace kinesta
