#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/App.h"
#include "app/AppTheme.h"
#include "app/AppearanceControl.h"
#include "app/ApplicationController.h"
#include "app/InstalledApplications.h"
#include "app/LaunchAtLoginManager.h"
#include "app/SoftwareUpdateController.h"
#include "app/SystemReport.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/qt/QtConfigurationWindow.h"
#include "support/Published.h"

namespace kinesta {

class KinestaWindow;

/// What a platform gives to the application with icon and window. The referents must outlive it. Each function but the
/// last is called once, in the order in which they stand.
struct ApplicationPlatform {
    Desktop& desktop;
    const ApplicationEvents& events;
    const BundleInformation& bundle;
    StatusItem& statusItem;
    /// Made by WindowedApplication::makeWindow().
    QtConfigurationWindow& widget;
    /// `widget`, or the window as the platform knows it.
    ConfigurationWindow& window;
    ActivationPolicy& activationPolicy;
    Termination& termination;
    AppearanceControl& appearance;
    const Published<AppTheme>& theme;
    const Screens& screens;
    const DisplayPreferences& preferences;
    const InstalledApplications& applications;
    /// Called when problems with the settings are heard and before the settings are first read. May be empty.
    std::function<void()> prepareSettings;
    std::function<void(ActionCuePresenting&)> setCue;
    std::function<std::unique_ptr<ActionCuePanel>()> makeCuePanel;
    std::function<LoginItemService&()> loginItem;
    SoftwareUpdateController::MakeUpdater makeUpdater;
    std::function<std::unique_ptr<SystemReport>(const RuleStore&)> makeReport;
    /// Whether windows may be translucent.
    bool (*blendsWindows)();
    std::string version;
};

/// The application with icon and window, on any platform: all parts, connected. Main thread only; needs the
/// QApplication.
class WindowedApplication {
  public:
    explicit WindowedApplication(ApplicationPlatform platform);
    /// Ends the window, so that it stores what it still holds.
    ~WindowedApplication();
    WindowedApplication(const WindowedApplication&) = delete;
    WindowedApplication& operator=(const WindowedApplication&) = delete;

    /// Called after the controller's status has changed.
    std::function<void()> onChange;
    /// Called when the window has been made, before it is shown.
    std::function<void()> onWindowMade;

    ApplicationController& controller() { return m_controller; }
    App& app() { return m_app; }

    std::unique_ptr<QWidget> makeWindow();

    /// Shows the icon, and the window where that is due, and starts recognition.
    void start(bool isInBackground);

    /// Takes over what another process has changed in the settings.
    void reload();

    /// Shows a problem in the log and in the window.
    void tell(const std::string& problem);
    /// Takes a problem that is solved out of the window.
    void forget(const std::string& problem);
    /// One more sentence in the window, which is no problem; empty for none.
    void setRemark(const std::string& remark);

    /// Gives this program's widgets their style, once. Not at the start: an icon alone needs none.
    void takeStyle();
    /// Shows the theme and the preferences that are in force now.
    void showTheme() const;

  private:
    void connectParts();
    Desktop::Tell teller();
    UserDefaults& firstDefaults();
    Desktop& desktopWithCue();
    KinestaWindow* configurationWindow() const;
    void tellLoginProblem();
    void openWindow();
    void showNotices();
    void applyAppearance();

    ApplicationPlatform m_platform;
    std::deque<std::string> m_problems;
    std::string m_remark;
    std::string m_loginProblem;
    std::string m_trackpadProblem;
    bool m_hasStyle = false;

    UserDefaults& m_defaults;
    ApplicationController m_controller;
    // Recognition comes after what shows that it is starting.
    ActionCuePresenter m_cue;
    App m_app;
    LaunchAtLoginManager m_login;
    SoftwareUpdateController m_updates;
    std::unique_ptr<SystemReport> m_report;
    Subscription m_themeObserver;
    Subscription m_loginObserver;
    Subscription m_statusObserver;
};

}  // namespace kinesta
