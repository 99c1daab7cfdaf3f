#include "app/SystemCheck.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <utility>

#include "app/ActionObstacle.h"
#include "recognition/MultitouchService.h"
#include "recognition/StoredRecognitionSettings.h"
#include "rules/GestureDescription.h"
#include "rules/ShellCommandSettings.h"
#include "rules/ShortcutKey.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr const char* kAllowReading = TRANSLATABLE(
    "Run this once in a terminal. It opens the touchpad, and nothing else, to the person who uses this computer.");

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

std::size_t countEnabled(const Rules& rules, const std::function<bool(const GestureRule&)>& needs) {
    return static_cast<std::size_t>(
        std::ranges::count_if(rules, [&](const GestureRule& rule) { return rule.isEnabled && needs(rule); }));
}

SystemFinding obstacleTo(const GestureRule& rule, std::string why, std::string remedy) {
    return {.subject = FindingSubject::rule,
            .what = translated("Rule “%1”", {describeTrigger(rule) + "  →  " + describeConsequence(rule)}),
            .works = false,
            .why = std::move(why),
            .remedy = std::move(remedy),
            .rulesInNeed = 1,
            .rule = rule.id};
}

SystemFinding findingAbout(const ConnectedTrackpads& trackpads) {
    SystemFinding finding{
        .subject = FindingSubject::touchpad, .what = translated("Touchpad"), .works = false, .why = {}};
    const ConnectedTrackpad* chosen = trackpads.chosen();
    if (chosen == nullptr) {
        finding.why = trackpads.whenNoneIsChosen.why;
        finding.remedy = trackpads.whenNoneIsChosen.remedy;
        finding.isSetting = !trackpads.all.empty();
        return finding;
    }
    finding.works = chosen->problem.empty();
    finding.why = !finding.works ? chosen->problem
                  : chosen->mayBeOff
                      ? translated("%1 at %2. Kinesta also reads it while this desktop has it switched off.",
                                   {chosen->name, chosen->path})
                      : translated("%1 at %2.", {chosen->name, chosen->path});
    if (!chosen->command.empty()) {
        finding.remedy = translated(kAllowReading);
        finding.command = chosen->command;
    }
    if (!chosen->isBuiltIn)
        finding.chosenName = chosen->name;
    return finding;
}

FindingSubject subjectOf(DesktopCapability capability) {
    switch (capability) {
        case DesktopCapability::sendInput:
            return FindingSubject::sendInput;
        case DesktopCapability::keyboardLayout:
            return FindingSubject::keyboardLayout;
        case DesktopCapability::windows:
            return FindingSubject::windows;
        case DesktopCapability::open:
            return FindingSubject::open;
        case DesktopCapability::notify:
            return FindingSubject::notify;
        case DesktopCapability::cue:
            break;
    }
    return FindingSubject::cue;
}

void addTrackpad(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    const ConnectedTrackpads trackpads = desktop.connectedTrackpads();
    const ConnectedTrackpad* chosen = trackpads.chosen();
    const std::size_t enabled = countEnabled(rules, [](const GestureRule&) { return true; });
    findings.push_back(findingAbout(trackpads));
    findings.back().rulesInNeed = enabled;
    if (!storedGestureEnabled(desktop.defaults()))
        findings.push_back({.subject = FindingSubject::gestureRecognition,
                            .what = translated("Gesture recognition"),
                            .works = false,
                            .why = translated("It is switched off in the settings."),
                            .remedy = translated("To switch it on %1",
                                                 {desktop.howToSet(MultitouchService::enabledStorageKey, "true")}),
                            .isSetting = true,
                            .rulesInNeed = enabled});
    const bool isRead = chosen != nullptr && chosen->axes;
    const bool canTellPressure = isRead && chosen->canTellPressure;
    findings.push_back({.subject = FindingSubject::forceClick,
                        .what = translated("Force Click"),
                        .works = canTellPressure,
                        .why = !isRead           ? translated("Not known while no touchpad can be read.")
                               : canTellPressure ? translated("The touchpad reports pressure.")
                                                 : translated("Impossible: the touchpad cannot tell pressure."),
                        .remedy = canTellPressure || !isRead
                                      ? std::string()
                                      : translated("Bind those rules to a physical click of any pressure."),
                        .rulesInNeed = countEnabled(rules, [](const GestureRule& rule) {
                            return physicalClickPressure(rule.gesture) == PhysicalClickPressure::force;
                        })});
    if (!isRead || chosen->fingers == 0)
        return;
    for (const GestureRule& rule : rules)
        if (rule.isEnabled && usesFingerCount(rule.gesture) && rule.fingerCount.value_or(0) > chosen->fingers)
            findings.push_back(obstacleTo(
                rule, translated("The touchpad reports at most %1 fingers at once.", {std::to_string(chosen->fingers)}),
                translated("Choose a gesture with fewer fingers.")));
}

void addSession(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    for (DesktopFinding& finding : desktop.findings()) {
        const std::size_t inNeed =
            countEnabled(rules, [&](const GestureRule& rule) { return needs(rule.action, finding.capability); });
        findings.push_back({.subject = subjectOf(finding.capability),
                            .what = std::move(finding.what),
                            .works = finding.works,
                            .why = std::move(finding.why),
                            .remedy = std::move(finding.remedy),
                            .command = std::move(finding.command),
                            .isSetting = finding.isSetting,
                            .rulesInNeed = inNeed});
    }
}

void addShellCommands(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    const bool isOn = ShellCommandSettings::isEnabled(desktop.defaults());
    findings.push_back({.subject = FindingSubject::shellCommands,
                        .what = translated("Shell commands"),
                        .works = isOn,
                        .why = isOn ? translated("Switched on.") : translated("Switched off, as they are at first."),
                        .remedy = isOn ? std::string()
                                       : translated("If you trust every rule that runs one: %1",
                                                    {desktop.howToSet(ShellCommandSettings::enabledKey, "true")}),
                        .isSetting = !isOn,
                        .rulesInNeed = countEnabled(rules, [](const GestureRule& rule) {
                            return rule.action.kind == ActionKind::shellCommand;
                        })});
}

std::optional<Obstacle> obstacleToLetter(const GestureAction& action, Desktop& desktop) {
    if (action.kind != ActionKind::keyboardShortcut || !action.keyCode || isTiling(action))
        return std::nullopt;
    const std::string name = ShortcutKey::nameFor(*action.keyCode);
    if (desktop.typesLetterOf(*action.keyCode, name))
        return std::nullopt;
    return Obstacle{translated("Your keyboard layout has no letter %1 where the shortcut would press it: as from the "
                               "keyboard itself, programs do not take it.",
                               {name}),
                    translated("Add a layout with Latin letters, such as us, to those that you switch between.")};
}

std::optional<Obstacle> obstacleToWindow(Desktop& desktop) {
    if (desktop.runningApplication().isRunning())
        return std::nullopt;
    return Obstacle{translated("Only the application has a window, and it does not run."),
                    translated("Start Kinesta without a subcommand.")};
}

void addObstacles(std::vector<SystemFinding>& findings, const Rules& rules, Desktop& desktop) {
    for (const GestureRule& rule : rules) {
        if (!rule.isEnabled)
            continue;
        auto obstacle = rule.action.kind == ActionKind::toggleConfigurationWindow
                            ? obstacleToWindow(desktop)
                            : kinesta::obstacleTo(rule.action, desktop);
        if (!obstacle)
            obstacle = obstacleToLetter(rule.action, desktop);
        if (obstacle)
            findings.push_back(obstacleTo(rule, std::move(obstacle->why), std::move(obstacle->remedy)));
    }
}

/// In the order of the enumeration.
constexpr std::array<std::string_view, 11> kSubjects{
    "touchpad", "gestureRecognition", "forceClick", "sendInput", "keyboardLayout", "windows", "open", "notify",
    "cue",      "shellCommands",      "rule"};

}  // namespace

std::string_view rawValue(FindingSubject subject) { return kSubjects.at(static_cast<std::size_t>(subject)); }

std::optional<FindingSubject> findingSubject(std::string_view raw) {
    const auto found = std::ranges::find(kSubjects, raw);
    if (found == kSubjects.end())
        return std::nullopt;
    return static_cast<FindingSubject>(found - kSubjects.begin());
}

std::vector<SystemFinding> checkSystem(Desktop& desktop, const std::vector<GestureRule>& rules) {
    std::vector<SystemFinding> findings;
    addTrackpad(findings, rules, desktop);
    addSession(findings, rules, desktop);
    addShellCommands(findings, rules, desktop);
    addObstacles(findings, rules, desktop);
    return findings;
}

}  // namespace kinesta
