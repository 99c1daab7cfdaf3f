#include "cli/ActionPerformer.h"

#include <utility>

#include "actions/WindowTilingMenuCommand.h"
#include "cli/ActionObstacle.h"
#include "cli/StoredSettings.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "rules/RuleStore.h"
#include "rules/ShellCommandSettings.h"

namespace kinesta {
namespace {

/// How long a window manager and a program get to do what they were asked for, in seconds.
constexpr Seconds kPatience = 1;

bool needsPosting(ActionKind kind) {
    return kind == ActionKind::keyboardShortcut || kind == ActionKind::middleClick || kind == ActionKind::closeWindow ||
           kind == ActionKind::adjustVolume;
}

/// What an action does to windows, if it is one of those.
std::optional<WindowOutcomes::Kind> windowKind(const GestureAction& action) {
    if (action.kind == ActionKind::closeWindow)
        return WindowOutcomes::Kind::close;
    if (action.kind != ActionKind::keyboardShortcut || !action.keyCode)
        return std::nullopt;
    const auto command = windowTilingMenuCommand(*action.keyCode, action.modifiers);
    if (!command)
        return std::nullopt;
    return command == WindowTilingMenuCommand::untile ? WindowOutcomes::Kind::untile : WindowOutcomes::Kind::tile;
}

}  // namespace

ActionPerformer::ActionPerformer(const Console& console, const UserDefaults& defaults, std::filesystem::path stored)
    : m_console(console), m_stored(std::move(stored)), m_defaults(defaults) {
    m_actions.emplace(m_clock, defaults, [this](const std::string& problem) {
        const std::lock_guard guard(m_lock);
        m_problems += (m_problems.empty() ? "" : "\n") + problem;
    });
    takeProblems();  // Whether keys can be posted is asked when an action needs them.
}

ActionPerformer::~ActionPerformer() { finish(); }

void ActionPerformer::prepareToPost() {
    if (!std::exchange(m_posts, true))
        m_actions->letDesktopCatchUp();
}

ActionPerformer::Report ActionPerformer::perform(const GestureRule& rule, std::int64_t steps) {
    const GestureAction& action = rule.action;
    if (!action.isConfigured())
        return {Outcome::failed, "The action of this rule is not complete."};
    if (!ShellCommandSettings::permits(action, m_defaults))
        return {Outcome::failed, "Shell commands are switched off in the settings."};
    if (action.kind == ActionKind::toggleConfigurationWindow)
        return {Outcome::failed, "No application runs here whose configuration window could be shown or hidden."};
    if (action.kind == ActionKind::disableAllRules)
        return disableAllRules();
    if (const auto obstacle = obstacleTo(action, PosixHomeFolders()))
        return {Outcome::failed, obstacle->why + " " + obstacle->remedy};
    ActionExecutor executor(m_actions->ports());
    if (needsPosting(action.kind)) {
        if (!executor.hasAccessibilityPermission())
            return {Outcome::failed, "Keys and clicks cannot be posted here. See: kinesta doctor"};
        prepareToPost();
    }
    const auto window = windowKind(action);
    m_actions->windowOutcomes().begin();
    executor.execute(action, steps, rule.shouldShowActionCue(), rule.resolvedVisualCueMessage());
    std::string problem = takeProblems();
    if (window)
        return windowReport(*window);
    return {problem.empty() ? Outcome::asked : Outcome::failed, std::move(problem)};
}

ActionPerformer::Report ActionPerformer::windowReport(WindowOutcomes::Kind kind) {
    WindowOutcomes& windows = m_actions->windowOutcomes();
    switch (windows.settle(kPatience)) {
        case WindowOutcomes::Outcome::done:
            return {Outcome::done, ""};
        case WindowOutcomes::Outcome::asked:
            return {Outcome::asked, kind == WindowOutcomes::Kind::close
                                        ? "The window is still open; it may be asking you something."
                                        : "The window has not gone where it was told to, but moved."};
        case WindowOutcomes::Outcome::ignored:
            return {Outcome::failed, "The window manager was asked, and left the window as it was."};
        case WindowOutcomes::Outcome::nothingAsked:
            break;
    }
    return {Outcome::failed, windows.obstacle(kind)};
}

/// As the running application would. A daemon notices that the settings file was changed.
ActionPerformer::Report ActionPerformer::disableAllRules() {
    StoredSettings settings(m_console, m_stored);
    RuleStore store(settings.defaults());
    settings.check(store);
    if (settings.status() == ExitStatus::success)
        store.disableAllRules();
    if (settings.status() != ExitStatus::success)
        return {Outcome::failed, "The rules were not switched off."};
    return {Outcome::done, ""};
}

std::string ActionPerformer::finish() {
    if (m_actions && m_posts)
        m_actions->letDesktopCatchUp();
    m_actions.reset();
    return takeProblems();
}

std::string ActionPerformer::takeProblems() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_problems, {});
}

}  // namespace kinesta
