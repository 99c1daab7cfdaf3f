#include "cli/commands/DoctorCommand.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "actions/WindowTilingMenuCommand.h"
#include "cli/ActionObstacle.h"
#include "cli/GestureReport.h"
#include "cli/LiveRecognition.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "platform/linux/LinuxActions.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "platform/linux/touchpad/TouchpadListing.h"
#include "recognition/StoredRecognitionSettings.h"
#include "rules/GestureDescription.h"
#include "rules/RuleStore.h"
#include "rules/ShellCommandSettings.h"
#include "rules/ShortcutKey.h"
#include "support/Json.h"
#include "support/SteadyClock.h"

namespace kinesta {
namespace {

/// One thing that rules may need: whether it is there, and if not what to do.
struct Finding {
    std::string what;
    bool works = false;
    std::string why;
    std::string remedy;
    /// Whether an enabled rule needs it.
    bool isNeeded = false;
};

bool needs(const GestureAction& action, DesktopCapability capability) {
    switch (action.kind) {
        case ActionKind::keyboardShortcut:
            if (action.keyCode && windowTilingMenuCommand(*action.keyCode, action.modifiers))
                return capability == DesktopCapability::windows || capability == DesktopCapability::sendInput;
            return capability == DesktopCapability::sendInput;
        case ActionKind::middleClick:
        case ActionKind::adjustVolume:
            return capability == DesktopCapability::sendInput;
        case ActionKind::closeWindow:  // which is allowed to those only who may send keys
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
    return "Rule “" + describeTrigger(rule) + "  →  " + ruleInWords(rule) + "”";
}

/// How to change a setting while there is no window for it.
std::string toSet(const std::filesystem::path& file, std::string_view key, const std::string& value) {
    return "set \"" + std::string(key) + "\" to " + value + " in " + file.string() + ".";
}

void addTouchpad(std::vector<Finding>& findings, const Rules& rules, const UserDefaults& defaults,
                 const std::filesystem::path& file) {
    const std::string wanted = defaults.string(kTouchpadSettingKey).value_or("");
    const auto touchpads = listTouchpads(wanted);
    const auto chosen = std::ranges::find_if(touchpads, [](const auto& listed) { return listed.isChosen; });
    const bool isNeeded = anyEnabled(rules, [](const GestureRule&) { return true; });
    if (chosen == touchpads.end())
        findings.push_back({"Touchpad", false, noTouchpadMessage(wanted),
                            touchpads.empty() ? "Connect one; recognition starts by itself."
                                              : "Choose one of those that kinesta devices shows: " +
                                                    toSet(file, kTouchpadSettingKey, "its name"),
                            isNeeded});
    else
        findings.push_back(
            {"Touchpad", chosen->problem.empty(),
             chosen->problem.empty()
                 ? chosen->candidate.name + " at " + chosen->candidate.path + "." +
                       (chosen->mayBeOff ? " Kinesta also reads it while this desktop has it switched off." : "")
                 : chosen->problem,
             "", isNeeded});
    if (!storedGestureEnabled(defaults))
        findings.push_back({"Gesture recognition", false, "It is switched off in the settings.",
                            "To switch it on " + toSet(file, MultitouchService::enabledStorageKey, "true"), isNeeded});
    const bool isRead = chosen != touchpads.end() && chosen->touchpad;
    const bool canTellPressure = isRead && chosen->canTellPressure;
    findings.push_back({"Force Click", canTellPressure,
                        !isRead           ? "Not known while no touchpad can be read."
                        : canTellPressure ? "The touchpad tells pressure."
                                          : "Impossible: the touchpad cannot tell pressure.",
                        canTellPressure || !isRead ? "" : "Bind those rules to a physical click of any pressure.",
                        anyEnabled(rules, [](const GestureRule& rule) {
                            return physicalClickPressure(rule.gesture) == PhysicalClickPressure::force;
                        })});
    if (!isRead || chosen->fingers == 0)
        return;
    for (const GestureRule& rule : rules)
        if (rule.isEnabled && usesFingerCount(rule.gesture) && rule.fingerCount.value_or(0) > chosen->fingers)
            findings.push_back(
                {inQuotes(rule), false,
                 "The touchpad tells of " + std::to_string(chosen->fingers) + " fingers at once and no more.",
                 "Choose a gesture with fewer fingers.", true});
}

void addSession(std::vector<Finding>& findings, const Rules& rules, LinuxActions& actions) {
    for (DesktopFinding& finding : actions.session().findings()) {
        const bool isNeeded =
            anyEnabled(rules, [&](const GestureRule& rule) { return needs(rule.action, finding.capability); });
        findings.push_back(
            {std::move(finding.what), finding.works, std::move(finding.why), std::move(finding.remedy), isNeeded});
    }
}

void addShellCommands(std::vector<Finding>& findings, const Rules& rules, const UserDefaults& defaults,
                      const std::filesystem::path& file) {
    const bool isOn = ShellCommandSettings::isEnabled(defaults);
    findings.push_back(
        {"Shell commands", isOn, isOn ? "Switched on." : "Switched off, as they are at first.",
         isOn ? "" : "If you trust every rule that runs one: " + toSet(file, ShellCommandSettings::enabledKey, "true"),
         anyEnabled(rules, [](const GestureRule& rule) { return rule.action.kind == ActionKind::shellCommand; })});
}

std::optional<Obstacle> obstacleToLetter(const GestureAction& action, LinuxActions& actions) {
    if (action.kind != ActionKind::keyboardShortcut || !action.keyCode ||
        windowTilingMenuCommand(*action.keyCode, action.modifiers) ||
        actions.typesLetterOf(*action.keyCode, ShortcutKey::nameFor(*action.keyCode)))
        return std::nullopt;
    return Obstacle{"Your keyboard layout has no letter " + ShortcutKey::nameFor(*action.keyCode) +
                        " where the shortcut would press it: as from the keyboard itself, programs do not take it.",
                    "Add a layout with Latin letters, such as us, to those that you switch between."};
}

/// What stands in the way of single rules.
void addRules(std::vector<Finding>& findings, const Rules& rules, LinuxActions& actions) {
    const PosixHomeFolders homes;
    for (const GestureRule& rule : rules) {
        if (!rule.isEnabled)
            continue;
        auto obstacle = obstacleTo(rule.action, homes);
        if (!obstacle)
            obstacle = obstacleToLetter(rule.action, actions);
        if (obstacle)
            findings.push_back({inQuotes(rule), false, obstacle->why, obstacle->remedy, true});
    }
}

}  // namespace

ExitStatus doctor(const Console& console, const std::filesystem::path& defaults, OutputForm form) {
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const Rules& rules = store.rules().value();
    std::vector<Finding> findings;
    addTouchpad(findings, rules, settings.defaults(), defaults);
    const SteadyClock clock;
    LinuxActions actions(clock, settings.defaults(), [](const std::string&) {});
    addSession(findings, rules, actions);
    addShellCommands(findings, rules, settings.defaults(), defaults);
    addRules(findings, rules, actions);
    bool isMissing = false;
    Json array = Json::array();
    for (const Finding& finding : findings) {
        isMissing = isMissing || (finding.isNeeded && !finding.works);
        if (form == OutputForm::json) {
            array.push_back({{"what", finding.what},
                             {"works", finding.works},
                             {"needed", finding.isNeeded},
                             {"why", finding.why},
                             {"remedy", finding.remedy}});
            continue;
        }
        const std::string mark = finding.works      ? console.good("✓")
                                 : finding.isNeeded ? console.warning("✗")
                                                    : console.dim("–");
        console.out << mark << ' ' << console.bold(printable(finding.what)) << ": " << printable(finding.why) << '\n';
        if (!finding.works && !finding.remedy.empty())
            console.out << "    " << finding.remedy << '\n';
    }
    if (form == OutputForm::json)
        console.out << array.text(2) << '\n';
    else
        console.out << '\n'
                    << (isMissing ? "Something that your rules need is missing (✗)."
                                  : "All that your rules need is there.")
                    << '\n';
    return isMissing ? ExitStatus::badInput : settings.status();
}

}  // namespace kinesta
