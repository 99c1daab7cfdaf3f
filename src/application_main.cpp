#include <QApplication>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>

#include "app/ApplicationControl.h"
#include "application/RunApplication.h"
#include "application/WindowedApplication.h"
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

namespace kinesta {
namespace {

/// How long a panel may take to accept the icon before the window says that there is none.
constexpr std::chrono::seconds kTrayPatience{2};

/// The application with what a Linux desktop gives to it.
class Application {
  public:
    Application(QtMainThread& mainLoop, LinuxDesktop& desktop, const LaunchOptions& options)
        : m_mainLoop(mainLoop), m_desktop(desktop), m_isInBackground(options.isInBackground) {
        m_statusItem.setPanelIsDark(m_settings.appearance() == NamedAppearance::darkAqua);
        m_settingsObserver = m_settings.observe([this] {
            m_statusItem.setPanelIsDark(m_settings.appearance() == NamedAppearance::darkAqua);
            m_application.showTheme();
        });
        m_statusItem.beforeMenu = [this] { m_application.takeStyle(); };
        m_application.onChange = [this] { m_control.refresh(); };
        m_trayObserver = m_statusItem.kind().observe([this](TrayKind) {
            m_control.refresh();
            showWhetherThereIsATray();
        });
        m_testObserver = m_application.app().testSession().isActive().observe([this](bool) { m_control.refresh(); });
    }

    // The icon changes once more as it goes, after the control.
    ~Application() { m_application.onChange = {}; }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    void run() {
        m_service.emplace(QDBusConnection::sessionBus(), m_control,
                          [this](const std::string& problem) { m_application.tell(problem); });
        m_application.start(m_isInBackground);
        m_session.emplace(m_events);
        m_trayCheck = m_mainLoop.after(kTrayPatience, [this] { findOutAboutTray(); });
        m_mainLoop.run();
    }

    void reload() { m_application.reload(); }

  private:
    void prepareSettings() {
        m_desktop.saveInBackground();
        m_desktop.onSettingsProblemSolved([this](const std::string& problem) { m_application.forget(problem); });
    }

    /// Someone who has started the program by hand must see something of it. A window that is there already may have
    /// stepped aside for an action, and must not take the keyboard.
    void findOutAboutTray() {
        m_isTrayDue = true;
        if (m_statusItem.kind().value() == TrayKind::none && !m_isInBackground && !m_window.exists())
            m_application.controller().showConfigurationWindow();
        showWhetherThereIsATray();
    }

    void showWhetherThereIsATray() {
        const bool isMissing = m_isTrayDue && m_statusItem.kind().value() == TrayKind::none;
        m_application.setRemark(
            isMissing
                ? translated("This desktop shows no status icons. Start Kinesta again to come back to this window.")
                : "");
    }

    std::unique_ptr<SoftwareUpdater> makeUpdater() {
        return std::make_unique<UpdaterProcess>(UpdaterProcess::Environment{.mainThread = m_mainLoop,
                                                                            .clock = m_desktop.clock(),
                                                                            .defaults = m_desktop.defaults(),
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
    bool m_isInBackground;
    bool m_isTrayDue = false;
    ProgramFiles m_files = ProgramFiles::ofThisProcess();
    JsonBundleInformation m_bundle{m_files.bundle()};
    ApplicationEvents m_events;
    QtConfigurationWindow m_window{m_events, [this] { return m_application.makeWindow(); }};
    DesktopSettings m_settings{QDBusConnection::sessionBus()};
    DesktopAppearance m_appearance{m_settings};
    DesktopScreens m_screens{[this] { return m_desktop.monitors(); }};
    LinuxStatusItem m_statusItem{QDBusConnection::sessionBus()};
    QtTermination m_termination{m_mainLoop};
    QtActivationPolicy m_policy;
    DesktopApplications m_applications;
    WindowedApplication m_application{{.desktop = m_desktop,
                                       .events = m_events,
                                       .bundle = m_bundle,
                                       .statusItem = m_statusItem,
                                       .widget = m_window,
                                       .window = m_window,
                                       .activationPolicy = m_policy,
                                       .termination = m_termination,
                                       .appearance = m_appearance,
                                       .theme = m_appearance.theme(),
                                       .screens = m_screens,
                                       .preferences = m_settings,
                                       .applications = m_applications,
                                       .prepareSettings = [this] { prepareSettings(); },
                                       .setCue = [this](ActionCuePresenting& cue) { m_desktop.setCue(cue); },
                                       .makeCuePanel = makeActionCuePanel,
                                       .loginItem = [this]() -> LoginItemService& { return m_desktop.loginItem(); },
                                       .makeUpdater = [this](const UpdateConfiguration&) { return makeUpdater(); },
                                       .makeReport =
                                           [this](const RuleStore&) {
                                               return std::make_unique<DoctorReport>(
                                                   m_mainLoop, m_files.program().string(), KINESTA_VERSION);
                                           },
                                       .blendsWindows = CompositorWatch::blendsWindows,
                                       .version = KINESTA_VERSION}};
    ApplicationControl m_control{
        {.store = m_application.app().store(),
         .service = m_application.app().recognition().service(),
         .statusText = [this] { return m_application.controller().statusLine(); },
         .isWindowVisible = [this] { return m_application.controller().isWindowShown(); },
         .isTestActive = [this] { return m_application.app().testSession().isActive().value(); },
         .tray = [this] { return m_statusItem.kind().value(); },
         .show = [this] { m_application.controller().showConfigurationWindow(); },
         .hide = [this] { m_application.controller().hideConfigurationWindow(); },
         .toggle = [this] { m_application.controller().toggleConfigurationWindow(); },
         .reload = [this] { reload(); },
         .quit = [this] { m_application.controller().quit(); }}};
    std::optional<ControlService> m_service;
    std::optional<SessionEvents> m_session;
    DelayedTask m_trayCheck;
    Subscription m_settingsObserver;
    Subscription m_trayObserver;
    Subscription m_testObserver;
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
    const LaunchOptions options = launchOptions(qt);
    installTranslations(ProgramFiles::ofThisProcess().translations());

    QtMainThread mainLoop;
    LinuxDesktop desktop(mainLoop, LinuxDesktop::Places::current());
    return runApplication<Application>(mainLoop, desktop, options);
}
