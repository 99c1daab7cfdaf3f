#include "application/WindowedApplication.h"

#include <QApplication>
#include <algorithm>
#include <iostream>
#include <utility>

#include "app/RulePerformer.h"
#include "support/Translation.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"
#include "ui/window/KinestaWindow.h"

namespace kinesta {
namespace {

constexpr std::size_t kMostProblems = 5;

}  // namespace

WindowedApplication::WindowedApplication(ApplicationPlatform platform)
    : m_platform(std::move(platform)),
      m_defaults(firstDefaults()),
      m_controller({m_platform.desktop.mainLoop(), m_defaults, m_platform.bundle, m_platform.events,
                    m_platform.statusItem, m_platform.window, m_platform.activationPolicy, m_platform.termination}),
      m_cue({m_defaults, m_platform.desktop.mainLoop(), m_platform.screens, m_platform.preferences},
            m_platform.makeCuePanel),
      m_app(desktopWithCue(), teller()),
      m_login(m_platform.loginItem()),
      m_updates(m_platform.bundle, m_platform.makeUpdater),
      m_report(m_platform.makeReport(m_app.store())) {
    connectParts();
    applyAppearance();
    showTheme();
}

WindowedApplication::~WindowedApplication() {
    m_platform.widget.discard();
    // The icon changes once more as it goes.
    m_controller.onChange = {};
}

void WindowedApplication::connectParts() {
    m_controller.configureWindowOpening([this] { openWindow(); });
    m_controller.configureRuntime(m_app.store(), m_app.recognition().service(), m_login, m_updates);
    m_controller.onChange = [this] {
        if (onChange)
            onChange();
        if (auto* window = configurationWindow())
            window->refresh();
    };
    m_app.onToggleConfigurationWindow = [this] { m_controller.toggleConfigurationWindow(); };
    m_loginObserver = m_login.errorMessage().observe([this](const auto&) { tellLoginProblem(); });
    tellLoginProblem();
    m_statusObserver = m_app.recognition().service().status().observe([this](const auto& status) {
        // The window shows it in its first line.
        if (status.message != std::exchange(m_trackpadProblem, status.message) && !status.message.empty())
            std::cerr << status.message << std::endl;
    });
    m_app.dispatcher().setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
        if (auto* window = configurationWindow())
            window->gestureDispatched(gesture, rule);
    });
    m_themeObserver = m_platform.theme.observe([this](const AppTheme&) { showTheme(); });
}

void WindowedApplication::start(bool isInBackground) {
    m_controller.applicationWillFinishLaunching();
    m_controller.applicationDidFinishLaunching(isInBackground ? ApplicationController::LaunchKind::inBackground
                                                              : ApplicationController::LaunchKind::byPerson);
    m_app.start();
    m_platform.desktop.watchDefaults([this] { reload(); });
    reload();  // for changes between the first reading and the start of watching
}

void WindowedApplication::reload() {
    if (!m_platform.desktop.reloadDefaults())
        return;
    m_app.reload();
    applyAppearance();
    if (auto* window = configurationWindow())
        window->refresh();
}

Desktop::Tell WindowedApplication::teller() {
    return [this](const std::string& problem) { tell(problem); };
}

void WindowedApplication::tell(const std::string& problem) {
    std::cerr << problem << std::endl;
    std::erase(m_problems, problem);
    m_problems.push_back(problem);
    if (m_problems.size() > kMostProblems)
        m_problems.pop_front();
    showNotices();
}

void WindowedApplication::forget(const std::string& problem) {
    if (std::erase(m_problems, problem) > 0)
        showNotices();
}

void WindowedApplication::setRemark(const std::string& remark) {
    if (remark != std::exchange(m_remark, remark))
        showNotices();
}

void WindowedApplication::tellLoginProblem() {
    // Each refresh publishes the same problem again.
    const auto& message = m_login.errorMessage().value();
    const std::string problem = message ? translated("Launch at login: %1", {*message}) : "";
    if (problem == m_loginProblem)
        return;
    forget(std::exchange(m_loginProblem, problem));
    if (!problem.empty())
        tell(problem);
}

UserDefaults& WindowedApplication::firstDefaults() {
    m_platform.desktop.onSettingsProblem(teller());
    if (m_platform.prepareSettings)
        m_platform.prepareSettings();
    return m_platform.desktop.defaults();
}

Desktop& WindowedApplication::desktopWithCue() {
    m_platform.setCue(m_cue);
    return m_platform.desktop;
}

KinestaWindow* WindowedApplication::configurationWindow() const {
    return static_cast<KinestaWindow*>(m_platform.widget.widget());
}

void WindowedApplication::takeStyle() {
    if (!std::exchange(m_hasStyle, true))
        QApplication::setStyle(new KinestaStyle(m_platform.blendsWindows));
}

std::unique_ptr<QWidget> WindowedApplication::makeWindow() {
    ActionExecutor& actions = m_app.executor();
    takeStyle();
    return std::make_unique<KinestaWindow>(
        WindowParts{.desktop = m_platform.desktop,
                    .store = m_app.store(),
                    .service = m_app.recognition().service(),
                    .testSession = m_app.testSession(),
                    .cue = m_cue,
                    .launchAtLogin = m_login,
                    .updates = m_updates,
                    .report = *m_report,
                    .applications = m_platform.applications,
                    .runAction =
                        [&actions](const GestureRule& rule) {
                            performRule(actions, rule, rule.action.kind == ActionKind::adjustVolume ? 1 : 0);
                        },
                    .requestAccessibilityPermission = [&actions] { actions.requestAccessibilityPermission(); },
                    .isPermissionMissing = [&actions] { return !actions.hasAccessibilityPermission(); },
                    .applyAppearance = [this] { applyAppearance(); },
                    .reloadSettings =
                        [this] {
                            m_app.reload();
                            applyAppearance();
                        },
                    .version = m_platform.version,
                    .isFirstLaunch = m_controller.isFirstLaunch()});
}

void WindowedApplication::openWindow() {
    m_platform.widget.open();
    if (onWindowMade)
        onWindowMade();
    showNotices();
}

void WindowedApplication::showNotices() {
    auto* window = configurationWindow();
    if (window == nullptr)
        return;
    std::vector<OverviewNotice> notices;
    for (const std::string& problem : m_problems)
        notices.push_back({OverviewNotice::Kind::problem, problem});
    if (!m_remark.empty())
        notices.push_back({OverviewNotice::Kind::remark, m_remark});
    window->setNotices(std::move(notices));
}

void WindowedApplication::showTheme() const {
    WindowTheme::setReducesMotion(m_platform.preferences.reducesMotion());
    WindowTheme::set(m_platform.theme.value());
}

void WindowedApplication::applyAppearance() {
    m_platform.appearance.force(AppAppearances::ns(AppAppearances::stored(m_defaults)));
}

}  // namespace kinesta
