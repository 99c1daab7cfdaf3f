#include "app/RulePerformer.h"

#include <optional>
#include <utility>

#include "actions/WindowTilingMenuCommand.h"
#include "app/ActionObstacle.h"
#include "rules/ShellCommandSettings.h"

namespace kinesta {
namespace {

/// How long a window manager and a program may take to carry out a request, in seconds.
constexpr Seconds kPatience = 1;

bool needsPosting(ActionKind kind) {
    return kind == ActionKind::keyboardShortcut || kind == ActionKind::middleClick || kind == ActionKind::closeWindow ||
           kind == ActionKind::adjustVolume;
}

/// What an action does to windows; nothing if it is no window action.
std::optional<WindowActionOutcomes::Kind> windowKind(const GestureAction& action) {
    using Kind = WindowActionOutcomes::Kind;
    if (action.kind == ActionKind::closeWindow)
        return Kind::close;
    if (!isTiling(action))
        return std::nullopt;
    const auto command = windowTilingMenuCommand(*action.keyCode, action.modifiers);
    return command == WindowTilingMenuCommand::untile ? Kind::untile : Kind::tile;
}

}  // namespace

std::int64_t adjustmentSteps(const DetectedGesture& gesture) {
    const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture);
    return slide ? slide->steps : 0;
}

void performRule(ActionExecutor& executor, const GestureRule& rule, std::int64_t steps) {
    executor.execute(rule.action, steps, rule.shouldShowActionCue(), rule.resolvedVisualCueMessage());
}

RulePerformer::RulePerformer(Desktop& desktop, const UserDefaults& settings, std::function<bool()> disableAllRules)
    : m_desktop(desktop), m_settings(settings), m_disableAllRules(std::move(disableAllRules)) {
    m_desktop.onActionProblem(
        [this](const std::string& problem) {
            const std::lock_guard guard(m_lock);
            m_problems += (m_problems.empty() ? "" : "\n") + problem;
        },
        ProgramOutput::nowhere);
}

RulePerformer::~RulePerformer() { finish(); }

void RulePerformer::prepareToPost() {
    if (!std::exchange(m_posts, true))
        m_desktop.letDesktopCatchUp();
}

RulePerformer::Report RulePerformer::perform(const GestureRule& rule, std::int64_t steps) {
    const GestureAction& action = rule.action;
    if (!action.isConfigured())
        return {Outcome::failed, "The action of this rule is not complete."};
    if (!ShellCommandSettings::permits(action, m_settings))
        return {Outcome::failed, "Shell commands are switched off in the settings."};
    if (action.kind == ActionKind::toggleConfigurationWindow) {
        const kinesta::Outcome toggled = m_desktop.runningApplication().ask(ApplicationRequest::toggle);
        return toggled ? Report{Outcome::done, ""}
                       : Report{Outcome::failed, "Only the application has a window. " + toggled.error().message};
    }
    if (action.kind == ActionKind::disableAllRules)
        return m_disableAllRules() ? Report{Outcome::done, ""}
                                   : Report{Outcome::failed, "The rules were not switched off."};
    if (const auto obstacle = obstacleTo(action, m_desktop))
        return {Outcome::failed, obstacle->why + " " + obstacle->remedy};
    ActionExecutor executor(m_desktop.actionPorts(m_settings));
    if (needsPosting(action.kind)) {
        if (!executor.hasAccessibilityPermission())
            return {Outcome::failed, "Keys and clicks cannot be posted here. See: kinesta doctor"};
        prepareToPost();
    }
    const auto window = windowKind(action);
    if (window)
        m_desktop.windowOutcomes().begin();
    performRule(executor, rule, steps);
    std::string problem = takeProblems();
    if (window)
        return windowReport(*window);
    return {problem.empty() ? Outcome::asked : Outcome::failed, std::move(problem)};
}

RulePerformer::Report RulePerformer::windowReport(WindowActionOutcomes::Kind kind) {
    WindowActionOutcomes& windows = m_desktop.windowOutcomes();
    switch (windows.settle(kPatience)) {
        case WindowActionOutcomes::Outcome::done:
            return {Outcome::done, ""};
        case WindowActionOutcomes::Outcome::asked:
            return {Outcome::asked, kind == WindowActionOutcomes::Kind::close
                                        ? "The window is still open; it may be asking you something."
                                        : "The window moved, but not to the place asked for."};
        case WindowActionOutcomes::Outcome::ignored:
            return {Outcome::failed, "The window manager was asked, and left the window as it was."};
        case WindowActionOutcomes::Outcome::unknown:
            return {Outcome::asked, ""};
        case WindowActionOutcomes::Outcome::nothingAsked:
            break;
    }
    return {Outcome::failed, windows.obstacle(kind)};
}

std::string RulePerformer::finish() {
    if (std::exchange(m_posts, false))
        m_desktop.letDesktopCatchUp();
    m_desktop.finishActions();
    return takeProblems();
}

std::string RulePerformer::takeProblems() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_problems, {});
}

}  // namespace kinesta
