#include <QApplication>
#include <memory>
#include <optional>

#include "application/DirectReport.h"
#include "application/RunApplication.h"
#include "application/WindowedApplication.h"
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
#include "platform/qt/QtMainThread.h"
#include "platform/qt/QtTermination.h"
#include "platform/qt/Translations.h"

namespace kinesta {
namespace {

/// While the application starts, it becomes active without anybody asking for its window.
constexpr std::chrono::seconds kStarting{2};

/// The application with what a Mac gives to it.
class Application {
  public:
    Application(QtMainThread& mainLoop, MacDesktop& desktop, const LaunchOptions& options)
        : m_mainLoop(mainLoop), m_desktop(desktop), m_isInBackground(options.isInBackground) {
        m_preferencesObserver = m_preferences.observe([this] { m_application.showTheme(); });
        // On a Mac the number of a window is the address of its view.
        m_application.onWindowMade = [this] {
            m_appearance.setWindowView(reinterpret_cast<void*>(m_widget.widget()->winId()));
        };
    }

    ~Application() { m_appearance.setWindowView(nullptr); }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void run() {
        m_application.start(m_isInBackground);
        m_session.emplace(m_events);
        m_started = m_mainLoop.after(kStarting, [this] { followReopening(); });
        m_mainLoop.run();
    }

    void reload() { m_application.reload(); }

  private:
    /// Qt, which is the application's delegate, reports in this way that the person has opened the application again.
    void followReopening() {
        QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &m_widget,
                         [this](Qt::ApplicationState state) {
                             if (state == Qt::ApplicationActive && !m_widget.isVisible())
                                 m_events.post(ApplicationEvent::reopened);
                         });
    }

    QtMainThread& m_mainLoop;
    MacDesktop& m_desktop;
    bool m_isInBackground;
    MacBundleInformation m_bundle;
    ApplicationEvents m_events;
    QtConfigurationWindow m_widget{m_events, [this] { return m_application.makeWindow(); }};
    MacConfigurationWindow m_window{m_widget};
    MacDisplayPreferences m_preferences;
    MacAppearance m_appearance{m_preferences};
    MacScreens m_screens;
    MacStatusItem m_statusItem;
    QtTermination m_termination{m_mainLoop};
    MacActivationPolicy m_policy;
    MacInstalledApplications m_applications;
    WindowedApplication m_application{
        {.desktop = m_desktop,
         .events = m_events,
         .bundle = m_bundle,
         .statusItem = m_statusItem,
         .widget = m_widget,
         .window = m_window,
         .activationPolicy = m_policy,
         .termination = m_termination,
         .appearance = m_appearance,
         .theme = m_appearance.theme(),
         .screens = m_screens,
         .preferences = m_preferences,
         .applications = m_applications,
         .prepareSettings = {},
         .setCue = [this](ActionCuePresenting& cue) { m_desktop.setCue(cue); },
         .makeCuePanel = [this] { return std::make_unique<MacActionCuePanel>(m_desktop.clock()); },
         .loginItem = [this]() -> LoginItemService& { return m_desktop.loginItem(); },
         .makeUpdater = [](const UpdateConfiguration&) { return MacSoftwareUpdater::make(); },
         .makeReport =
             [this](const RuleStore& store) {
                 return std::make_unique<DirectReport>(m_desktop, store, KINESTA_VERSION);
             },
         .blendsWindows = [] { return true; },
         .version = KINESTA_VERSION}};
    std::optional<MacSessionEvents> m_session;
    DelayedTask m_started;
    Subscription m_preferencesObserver;
};

}  // namespace
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setApplicationName(QStringLiteral("Kinesta"));
    QApplication::setQuitOnLastWindowClosed(ApplicationController::applicationShouldTerminateAfterLastWindowClosed());
    const QApplication qt(argc, argv);
    const LaunchOptions options = launchOptions(qt);
    const MacProgramFiles files = MacProgramFiles::ofThisProcess();
    installTranslations(files.translations());

    QtMainThread mainLoop;
    MacDesktop desktop(mainLoop, files);
    return runApplication<Application>(mainLoop, desktop, options);
}
