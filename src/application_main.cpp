#include <QApplication>
#include <QCommandLineParser>
#include <deque>
#include <iostream>
#include <optional>
#include <utility>

#include "app/App.h"
#include "app/ApplicationControl.h"
#include "app/ApplicationController.h"
#include "app/RulePerformer.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/launching/DesktopApplications.h"
#include "platform/linux/process/ProgramFiles.h"
#include "platform/linux/process/SignalBlock.h"
#include "platform/linuxdesktop/DoctorReport.h"
#include "platform/linuxdesktop/UpdaterProcess.h"
#include "platform/linuxdesktop/appearance/DesktopAppearance.h"
#include "platform/linuxdesktop/appearance/IconFolders.h"
#include "platform/linuxdesktop/cue/CompositorWatch.h"
#include "platform/linuxdesktop/cue/DesktopActionCue.h"
#include "platform/linuxdesktop/cue/DesktopScreens.h"
#include "platform/linuxdesktop/session/ControlService.h"
#include "platform/linuxdesktop/session/SessionBus.h"
#include "platform/linuxdesktop/session/SessionEvents.h"
#include "platform/linuxdesktop/tray/LinuxStatusItem.h"
#include "platform/qt/JsonBundleInformation.h"
#include "platform/qt/QtActivationPolicy.h"
#include "platform/qt/QtConfigurationWindow.h"
#include "platform/qt/QtMainThread.h"
#include "platform/qt/QtTermination.h"
#include "platform/qt/Translations.h"
#include "support/Translation.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"
#include "ui/window/KinestaWindow.h"

namespace kinesta {
namespace {

/// How long a panel may take to accept the icon before the window says that there is none.
constexpr std::chrono::seconds kTrayPatience{2};
constexpr std::size_t kMostProblems = 5;

struct Options {
    bool isInBackground = false;
    std::optional<std::string> trackpad;
};

Options optionsIn(const QApplication& application) {
    QCommandLineParser parser;
    const QCommandLineOption background(QStringLiteral("background"));
    const QCommandLineOption trackpad(QStringLiteral("trackpad"), {}, QStringLiteral("PATH"));
    parser.addOptions({background, trackpad});
    parser.process(application);
    return {parser.isSet(background),
            parser.isSet(trackpad) ? std::optional(parser.value(trackpad).toStdString()) : std::nullopt};
}

/// The application on a Linux desktop: all parts, connected.
class Application {
  public:
    Application(QtMainThread& mainLoop, LinuxDesktop& desktop, Options options)
        : m_mainLoop(mainLoop), m_desktop(desktop), m_options(std::move(options)) {
        m_statusItem.setPanelIsDark(m_settings.appearance() == NamedAppearance::darkAqua);
        m_settingsObserver = m_settings.observe([this] {
            m_statusItem.setPanelIsDark(m_settings.appearance() == NamedAppearance::darkAqua);
            showTheme();
        });
        m_statusItem.beforeMenu = [this] { takeStyle(); };
        m_controller.configureWindowOpening([this] {
            m_window.open();
            showNotices();
        });
        m_controller.configureRuntime(m_app.store(), m_app.recognition().service(), m_login, m_updates);
        m_controller.onChange = [this] {
            m_control.refresh();
            if (auto* window = configurationWindow())
                window->refresh();
        };
        m_app.onToggleConfigurationWindow = [this] { m_controller.toggleConfigurationWindow(); };
        m_trayObserver = m_statusItem.kind().observe([this](TrayKind) {
            m_control.refresh();
            showNotices();
        });
        m_testObserver = m_app.testSession().isActive().observe([this](bool) { m_control.refresh(); });
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
        m_themeObserver = m_appearance.theme().observe([this](const AppTheme&) { showTheme(); });
        applyAppearance();
        showTheme();
    }

    ~Application() {
        m_window.discard();  // it may still have something to store
        // The icon changes once more as it goes, after the control.
        m_controller.onChange = {};
    }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void run() {
        m_controller.applicationWillFinishLaunching();
        m_service.emplace(QDBusConnection::sessionBus(), m_control,
                          [this](const std::string& problem) { tell(problem); });
        m_controller.applicationDidFinishLaunching(m_options.isInBackground
                                                       ? ApplicationController::LaunchKind::inBackground
                                                       : ApplicationController::LaunchKind::byPerson);
        m_app.start();
        m_session.emplace(m_events);
        m_desktop.watchDefaults([this] { reload(); });
        reload();  // for changes between the first reading and the start of watching
        m_trayCheck = m_mainLoop.after(kTrayPatience, [this] { findOutAboutTray(); });
        m_mainLoop.run();
    }

    void reload() {
        if (!m_desktop.reloadDefaults())
            return;
        m_app.reload();
        applyAppearance();
        if (auto* window = configurationWindow())
            window->refresh();
    }

  private:
    /// Shows problems in the log and in the window.
    Desktop::Tell teller() {
        return [this](const std::string& problem) { tell(problem); };
    }

    void tell(const std::string& problem) {
        std::cerr << problem << std::endl;
        std::erase(m_problems, problem);
        m_problems.push_back(problem);
        if (m_problems.size() > kMostProblems)
            m_problems.pop_front();
        showNotices();
    }

    /// Each refresh publishes the same problem again; one that is solved leaves the window.
    void tellLoginProblem() {
        const std::string problem = m_login.errorMessage().value().value_or("");
        if (problem == m_loginProblem)
            return;
        std::erase(m_problems, std::exchange(m_loginProblem, problem));
        if (problem.empty())
            showNotices();
        else
            tell(problem);
    }

    UserDefaults& defaultsThatTell() {
        m_desktop.onSettingsProblem(teller());
        m_desktop.saveInBackground();
        m_desktop.onSettingsProblemSolved([this](const std::string& problem) {
            std::erase(m_problems, problem);
            showNotices();
        });
        return m_desktop.defaults();
    }

    Desktop& desktopWithCue() {
        m_desktop.setCue(m_cue);
        return m_desktop;
    }

    KinestaWindow* configurationWindow() const { return static_cast<KinestaWindow*>(m_window.widget()); }

    /// Not at the start: an icon alone needs no style.
    void takeStyle() {
        if (!std::exchange(m_hasStyle, true))
            QApplication::setStyle(new KinestaStyle(CompositorWatch::blendsWindows));
    }

    std::unique_ptr<QWidget> makeWindow() {
        ActionExecutor& actions = m_app.executor();
        takeStyle();
        return std::make_unique<KinestaWindow>(
            WindowParts{.desktop = m_desktop,
                        .store = m_app.store(),
                        .service = m_app.recognition().service(),
                        .testSession = m_app.testSession(),
                        .cue = m_cue,
                        .launchAtLogin = m_login,
                        .updates = m_updates,
                        .report = m_report,
                        .applications = m_applications,
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
                        .version = KINESTA_VERSION,
                        .isFirstLaunch = m_controller.isFirstLaunch()});
    }

    void showTheme() const {
        WindowTheme::setReducesMotion(m_settings.reducesMotion());
        WindowTheme::set(m_appearance.theme().value());
    }

    void showNotices() {
        auto* window = configurationWindow();
        if (window == nullptr)
            return;
        std::vector<OverviewNotice> notices;
        for (const std::string& problem : m_problems)
            notices.push_back({OverviewNotice::Kind::problem, problem});
        if (m_isTrayDue && m_statusItem.kind().value() == TrayKind::none)
            notices.push_back(
                {OverviewNotice::Kind::remark,
                 translated("This desktop shows no status icons. Start Kinesta again to come back to this window.")});
        window->setNotices(std::move(notices));
    }

    /// Someone who has started the program by hand must see something of it.
    void findOutAboutTray() {
        m_isTrayDue = true;
        if (m_statusItem.kind().value() == TrayKind::none && !m_options.isInBackground)
            m_controller.showConfigurationWindow();
        showNotices();
    }

    void applyAppearance() { m_appearance.force(AppAppearances::ns(AppAppearances::stored(m_defaults))); }

    std::unique_ptr<SoftwareUpdater> makeUpdater() {
        return std::make_unique<UpdaterProcess>(UpdaterProcess::Environment{.mainThread = m_mainLoop,
                                                                            .clock = m_desktop.clock(),
                                                                            .defaults = m_defaults,
                                                                            .program = m_files.updater().string(),
                                                                            .bundle = m_files.bundle().string(),
                                                                            .look = [this] { return updaterLook(); }});
    }

    QStringList updaterLook() const {
        QStringList look;
        if (m_appearance.appearance() == NamedAppearance::darkAqua)
            look += QStringLiteral("--dark");
        if (m_settings.contrast() == ThemeContrast::more)
            look += QStringLiteral("--more-contrast");
        return look;
    }

    QtMainThread& m_mainLoop;
    LinuxDesktop& m_desktop;
    Options m_options;
    std::deque<std::string> m_problems;
    std::string m_loginProblem;
    std::string m_trackpadProblem;
    bool m_isTrayDue = false;
    bool m_hasStyle = false;
    ProgramFiles m_files = ProgramFiles::ofThisProcess();
    JsonBundleInformation m_bundle{m_files.bundle()};
    ApplicationEvents m_events;
    QtConfigurationWindow m_window{m_events, [this] { return makeWindow(); }};

    DesktopSettings m_settings{QDBusConnection::sessionBus()};
    DesktopAppearance m_appearance{m_settings};
    DesktopScreens m_screens{[this] { return m_desktop.monitors(); }};
    UserDefaults& m_defaults{defaultsThatTell()};
    LinuxStatusItem m_statusItem{QDBusConnection::sessionBus()};
    QtTermination m_termination{m_mainLoop};
    QtActivationPolicy m_policy;
    ApplicationController m_controller{
        {m_mainLoop, m_defaults, m_bundle, m_events, m_statusItem, m_window, m_policy, m_termination}};

    // Recognition comes after what shows that it is starting.
    ActionCuePresenter m_cue{{m_defaults, m_mainLoop, m_screens, m_settings}, makeActionCuePanel};
    App m_app{desktopWithCue(), teller()};
    LaunchAtLoginManager m_login{m_desktop.loginItem()};
    SoftwareUpdateController m_updates{m_bundle, [this](const UpdateConfiguration&) { return makeUpdater(); }};
    DoctorReport m_report{m_mainLoop, m_files.program().string(), KINESTA_VERSION};
    DesktopApplications m_applications;
    ApplicationControl m_control{{.store = m_app.store(),
                                  .service = m_app.recognition().service(),
                                  .statusText = [this] { return m_controller.statusLine(); },
                                  .isWindowVisible = [this] { return m_controller.isWindowShown(); },
                                  .isTestActive = [this] { return m_app.testSession().isActive().value(); },
                                  .tray = [this] { return m_statusItem.kind().value(); },
                                  .show = [this] { m_controller.showConfigurationWindow(); },
                                  .hide = [this] { m_controller.hideConfigurationWindow(); },
                                  .toggle = [this] { m_controller.toggleConfigurationWindow(); },
                                  .reload = [this] { reload(); },
                                  .quit = [this] { m_controller.quit(); }}};
    std::optional<ControlService> m_service;
    std::optional<SessionEvents> m_session;
    DelayedTask m_trayCheck;
    Subscription m_settingsObserver;
    Subscription m_themeObserver;
    Subscription m_trayObserver;
    Subscription m_testObserver;
    Subscription m_loginObserver;
    Subscription m_statusObserver;
};

}  // namespace
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    blockProgramSignals();  // before Qt starts threads
    QApplication::setApplicationName(QStringLiteral("Kinesta"));
    QApplication::setDesktopFileName(QStringLiteral("com.orvane.kinesta"));
    QApplication::setQuitOnLastWindowClosed(ApplicationController::applicationShouldTerminateAfterLastWindowClosed());
    // Otherwise Qt loads GTK on many desktops: twice the memory and time, for colours that are our own here.
    QApplication::setDesktopSettingsAware(false);
    std::optional<SessionBusCheck> busCheck(std::in_place);
    std::optional<XWaylandPreference> preference(std::in_place);
    const QApplication qt(argc, argv);
    useIconFolders();
    preference.reset();
    busCheck.reset();
    const Options options = optionsIn(qt);
    installTranslations(ProgramFiles::ofThisProcess().translations());

    QtMainThread mainLoop;
    LinuxDesktop desktop(mainLoop, LinuxDesktop::Places::current());
    desktop.surviveClosedPipes();
    Application* running = nullptr;
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::reload}, [&](ProgramSignal signal) {
        if (signal == ProgramSignal::end)
            mainLoop.quit();
        else if (running)
            running->reload();
    });
    const auto claim = desktop.claimApplication(options.isInBackground ? ApplicationOpening::inBackground
                                                                       : ApplicationOpening::withWindow);
    if (!claim) {
        std::cerr << claim.error().message << '\n';
        return 1;
    }
    if (!*claim)
        return 0;  // the other application has shown its window
    if (options.trackpad)
        desktop.useStream(*options.trackpad);
    Application application(mainLoop, desktop, options);
    running = &application;
    application.run();
    running = nullptr;
    return 0;
}
