#include "cli/PerformCommand.h"

#include <mutex>

#include "app/GestureDispatcher.h"
#include "cli/ActionObstacle.h"
#include "cli/GestureReport.h"
#include "cli/StoredSettings.h"
#include "platform/linux/LinuxActions.h"
#include "platform/linux/PosixHomeFolders.h"
#include "rules/RuleStore.h"
#include "rules/ShellCommandSettings.h"
#include "support/SteadyClock.h"

namespace kinesta {
namespace {

/// The rule with this id or, failing that, the first with this name.
const GestureRule* findRule(const std::vector<GestureRule>& rules, const std::string& wanted) {
    const auto id = Uuid::parse(wanted);
    for (const GestureRule& rule : rules)
        if (id && rule.id == *id)
            return &rule;
    for (const GestureRule& rule : rules)
        if (!wanted.empty() && rule.name == wanted)
            return &rule;
    return nullptr;
}

bool needsPosting(ActionKind kind) {
    return kind == ActionKind::keyboardShortcut || kind == ActionKind::middleClick || kind == ActionKind::closeWindow ||
           kind == ActionKind::adjustVolume;
}

}  // namespace

ExitStatus perform(const Console& console, const std::filesystem::path& defaults, const std::string& rule) {
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const GestureRule* found = findRule(store.rules().value(), rule);
    if (found == nullptr)
        return console.fail("No stored rule has the id or the name \"" + rule + "\". See: kinesta rules list");
    if (!found->action.isConfigured())
        return console.fail("The action of this rule is not complete.");
    if (!ShellCommandSettings::permits(found->action, settings.defaults()))
        return console.fail("Shell commands are switched off in the settings.");
    if (found->action.kind == ActionKind::toggleConfigurationWindow ||
        found->action.kind == ActionKind::disableAllRules)
        return console.fail("This action is for the running application to perform.");
    if (const auto obstacle = obstacleTo(found->action, PosixHomeFolders()))
        return console.fail(obstacle->why + " " + obstacle->remedy);
    const SteadyClock clock;
    std::mutex lock;  // what goes wrong is told on more than one thread
    std::string problem;
    bool isTrusted = true;
    {
        LinuxActions actions(clock, settings.defaults(), [&](const std::string& text) {
            const std::lock_guard guard(lock);
            problem = text;
        });
        ActionExecutor executor(actions.ports());
        isTrusted = !needsPosting(found->action.kind) || executor.hasAccessibilityPermission();
        const bool isPosting = isTrusted && needsPosting(found->action.kind);
        if (isPosting)
            actions.letDesktopCatchUp();
        executor.execute(found->action, 1, found->shouldShowActionCue(), found->resolvedVisualCueMessage());
        if (isPosting)
            actions.letDesktopCatchUp();
    }  // which waits until all has been handed over
    if (!isTrusted)
        return console.fail("Keys and clicks cannot be posted here. See: kinesta doctor");
    if (!problem.empty())
        return console.fail(problem);
    // Nobody tells what came of it: a window may ask before it closes, a program may refuse a file.
    console.out << "Asked for: " << ruleInWords(*found) << '\n';
    return settings.status();
}

}  // namespace kinesta
