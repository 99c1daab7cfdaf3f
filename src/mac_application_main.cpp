#include <QApplication>
#include <QCommandLineParser>
#include <deque>
#include <iostream>
#include <optional>
#include <utility>

#include "app/App.h"
#include "app/ApplicationController.h"
#include "app/RulePerformer.h"
#include "app/SystemReport.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/macos/MacDesktop.h"
#include "platform/macos/appearance/MacAppearance.h"
#include "platform/macos/appearance/MacDisplayPreferences.h"
#include "platform/macos/application/MacActivationPolicy.h"
#include "platform/macos/application/MacConfigurationWindow.h"
#include "platform/macos/application/MacSessionEvents.h"
#include "platform/macos/cue/MacActionCuePanel.h"
#include "platform/macos/cue/MacScreens.h"
#include "platform/macos/statusitem/MacStatusItem.h"
#include "platform/macos/updates/MacBundleInformation.h"
#include "platform/macos/updates/MacSoftwareUpdater.h"
#include "platform/macos/workspace/MacInstalledApplications.h"
#include "platform/qt/QtConfigurationWindow.h"
#include "platform/qt/QtMainThread.h"
#include "platform/qt/QtTermination.h"
#include "platform/qt/ReportText.h"
#include "platform/qt/Translations.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"
#include "ui/window/KinestaWindow.h"

namespace kinesta {
namespace {

/// While the application starts, it becomes active without anybody asking for its window.
constexpr std::chrono::seconds kStarting{2};
constexpr std::size_t kMostProblems = 5;

/// Asks in this process: nothing on a Mac holds the answer up.
class DirectReport final : public SystemReport {
  public:
    DirectReport(Desktop& desktop, RuleStore& store) : m_desktop(desktop), m_store(store) {}

    void request(Receive receive) override {
        m_answer = m_desktop.mainLoop().after({}, [this, receive = std::move(receive)] {
            Result result;
            result.findings = checkSystem(m_desktop, m_store.rules().value());
            result.text = reportText(result, KINESTA_VERSION);
            receive(result);
        });
    }

  private:
    Desktop& m_desktop;
    RuleStore& m_store;
    DelayedTask m_answer;
};

/// The application on a Mac: all parts, connected.
class Application {
  public:
    Application(QtMainThread& mainLoop, MacDesktop& desktop, bool isInBackground)
        : m_mainLoop(mainLoop), m_desktop(desktop), m_isInBackground(isInBackground) {
        m_controller.configureWindowOpening([this] { openWindow(); });
        m_controller.configureRuntime(m_app.store(), m_app.recognition().service(), m_login, m_updates);
        m_controller.onChange = [this] {
            if (auto* window = configurationWindow())
                window->refresh();
        };
        m_app.onToggleConfigurationWindow = [this] { m_controller.toggleConfigurationWindow(); };
        m_loginObserver = m_login.errorMessage().observe([this](const std::optional<std::string>& problem) {
            if (problem)
                tell(*problem);
        });
        m_app.dispatcher().setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
            if (auto* window = configurationWindow())
                window->gestureDispatched(gesture, rule);
        });
        m_preferencesObserver = m_preferences.observe([this] { showTheme(); });
        m_themeObserver = m_appearance.theme().observe([this](const AppTheme&) { showTheme(); });
        applyAppearance();
        showTheme();
    }

    ~Application() {
        m_appearance.setWindowView(nullptr);
        m_window.discard();  // it may still have something to store
        m_controller.onChange = {};
    }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void run() {
        m_controller.applicationWillFinishLaunching();
        m_controller.applicationDidFinishLaunching(m_isInBackground ? ApplicationController::LaunchKind::inBackground
                                                                    : ApplicationController::LaunchKind::byPerson);
        m_app.start();
        m_session.emplace(m_events);
        m_desktop.watchDefaults([this] { reload(); });
        reload();  // for changes between the first reading and the start of watching
        m_started = m_mainLoop.after(kStarting, [this] { followReopening(); });
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

    void showNotices() {
        auto* window = configurationWindow();
        if (window == nullptr)
            return;
        std::vector<OverviewNotice> notices;
        for (const std::string& problem : m_problems)
            notices.push_back({OverviewNotice::Kind::problem, problem});
        window->setNotices(std::move(notices));
    }

    UserDefaults& defaultsThatTell() {
        m_desktop.onSettingsProblem(teller());
        return m_desktop.defaults();
    }

    Desktop& desktopWithCue() {
        m_desktop.setCue(m_cue);
        return m_desktop;
    }

    KinestaWindow* configurationWindow() const { return static_cast<KinestaWindow*>(m_window.widget()); }

    void openWindow() {
        m_window.open();
        // On a Mac the number of a window is the address of its view.
        m_appearance.setWindowView(reinterpret_cast<void*>(m_window.widget()->winId()));
        showNotices();
    }

    std::unique_ptr<QWidget> makeWindow() {
        ActionExecutor& actions = m_app.executor();
        QApplication::setStyle(new KinestaStyle([] { return true; }));
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
        WindowTheme::setReducesMotion(m_preferences.reducesMotion());
        WindowTheme::set(m_appearance.theme().value());
    }

    void applyAppearance() { m_appearance.force(AppAppearances::ns(AppAppearances::stored(m_defaults))); }

    /// Qt, which is the application's delegate, reports in this way that the person has opened the application again.
    void followReopening() {
        QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &m_window,
                         [this](Qt::ApplicationState state) {
                             if (state == Qt::ApplicationActive && !m_window.isVisible())
                                 m_events.post(ApplicationEvent::reopened);
                         });
    }

    QtMainThread& m_mainLoop;
    MacDesktop& m_desktop;
    bool m_isInBackground;
    std::deque<std::string> m_problems;
    MacBundleInformation m_bundle;
    ApplicationEvents m_events;
    QtConfigurationWindow m_window{m_events, [this] { return makeWindow(); }};
    MacConfigurationWindow m_shownWindow{m_window};

    MacDisplayPreferences m_preferences;
    MacAppearance m_appearance{m_preferences};
    MacScreens m_screens;
    UserDefaults& m_defaults{defaultsThatTell()};
    MacStatusItem m_statusItem;
    QtTermination m_termination{m_mainLoop};
    MacActivationPolicy m_policy;
    ApplicationController m_controller{
        {m_mainLoop, m_defaults, m_bundle, m_events, m_statusItem, m_shownWindow, m_policy, m_termination}};

    // Recognition comes after what shows that it is starting.
    ActionCuePresenter m_cue{{m_defaults, m_mainLoop, m_screens, m_preferences},
                             [this] { return std::make_unique<MacActionCuePanel>(m_desktop.clock()); }};
    App m_app{desktopWithCue(), teller()};
    LaunchAtLoginManager m_login{m_desktop.loginItem()};
    SoftwareUpdateController m_updates{m_bundle, [](const UpdateConfiguration&) { return MacSoftwareUpdater::make(); }};
    DirectReport m_report{m_desktop, m_app.store()};
    MacInstalledApplications m_applications;
    std::optional<MacSessionEvents> m_session;
    DelayedTask m_started;
    Subscription m_preferencesObserver;
    Subscription m_themeObserver;
    Subscription m_loginObserver;
};

}  // namespace
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setApplicationName(QStringLiteral("Kinesta"));
    QApplication::setQuitOnLastWindowClosed(ApplicationController::applicationShouldTerminateAfterLastWindowClosed());
    const QApplication qt(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption background(QStringLiteral("background"));
    const QCommandLineOption trackpad(QStringLiteral("trackpad"), {}, QStringLiteral("PATH"));
    parser.addOptions({background, trackpad});
    parser.process(qt);
    const MacProgramFiles files = MacProgramFiles::ofThisProcess();
    installTranslations(files.translations());

    QtMainThread mainLoop;
    MacDesktop desktop(mainLoop, files);
    desktop.surviveClosedPipes();
    Application* running = nullptr;
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::reload}, [&](ProgramSignal signal) {
        if (signal == ProgramSignal::end)
            mainLoop.quit();
        else if (running)
            running->reload();
    });
    const bool isInBackground = parser.isSet(background);
    const auto claim =
        desktop.claimApplication(isInBackground ? ApplicationOpening::inBackground : ApplicationOpening::withWindow);
    if (!claim) {
        std::cerr << claim.error().message << '\n';
        return 1;
    }
    if (!*claim)
        return 0;  // the other application has shown its window
    if (parser.isSet(trackpad))
        desktop.useStream(parser.value(trackpad).toStdString());
    Application application(mainLoop, desktop, isInBackground);
    running = &application;
    application.run();
    running = nullptr;
    return 0;
}
