#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/ActivationPolicy.h"
#include "app/ApplicationEvents.h"
#include "app/BundleInformation.h"
#include "app/ConfigurationWindow.h"
#include "app/LaunchAtLoginManager.h"
#include "app/SoftwareUpdateController.h"
#include "app/StatusItem.h"
#include "app/Termination.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// What the application controller needs from the machine. The referents must outlive it.
struct ApplicationPorts {
    MainThread& mainThread;
    UserDefaults& defaults;
    const BundleInformation& bundle;
    const ApplicationEvents& events;
    StatusItem& statusItem;
    ConfigurationWindow& window;
    ActivationPolicy& activationPolicy;
    Termination& termination;
};

/// The shell around recognition: the status item and its menu, showing and hiding the configuration window, first
/// launch, and what follows from sleep and activation. Main thread only.
class ApplicationController {
  public:
    static constexpr std::string_view firstLaunchKey = "hasCompletedFirstLaunch.v1";
    /// In the bundle of a build that closes its window by itself once it has been shown, and then quits.
    static constexpr std::string_view windowCloseTestKey = "KinestaWindowCloseTest";
    static constexpr int maximumActivationAttempts = 5;
    static constexpr std::chrono::milliseconds activationRetryInterval{50};

    enum class LaunchKind {
        byPerson,
        /// At login: shows no window, not even at the first launch.
        inBackground
    };

    explicit ApplicationController(const ApplicationPorts& ports);

    /// Called when the menu, the state of the window or anything else has changed that others show.
    std::function<void()> onChange;

    /// The parts that exist only after the controller. They must outlive it.
    void configureRuntime(RuleStore& store, MultitouchService& touchService, LaunchAtLoginManager& launchAtLogin,
                          SoftwareUpdateController& softwareUpdateController);
    /// `handler` makes and shows the configuration window.
    void configureWindowOpening(std::function<void()> handler) { m_openWindowHandler = std::move(handler); }

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching(LaunchKind kind = LaunchKind::byPerson);
    /// The application lives on in the menu bar.
    static constexpr bool applicationShouldTerminateAfterLastWindowClosed() { return false; }
    void applicationShouldHandleReopen() { showConfigurationWindow(); }

    void statusItemClicked(StatusItemClick click);
    void toggleGestureRecognition();
    void toggleLaunchAtLogin();
    void toggleConfigurationWindow();
    void showConfigurationWindow();
    void hideConfigurationWindow();
    void checkForUpdates();
    void quit();

    /// The menu as it would open now.
    StatusMenu menu() const;
    /// What the menu says about recognition.
    std::string statusLine() const;
    /// Whether the configuration window is on the screen and not miniaturized.
    bool isWindowShown() const;
    bool isFirstLaunch() const { return m_isFirstLaunch; }

  private:
    void installObservers();
    void perform(StatusMenuCommand command);
    /// Gives the status item its picture and its menu.
    void updateStatusIcon();
    void hideFromAppSwitcherIfWindowIsClosed();
    void prepareToShowWindow();
    void attemptWindowActivation();
    void retryWindowActivation();
    void activateOpenedWindow(int attemptsRemaining);
    bool hasFocus() const;
    void suppressInitialConfigurationWindow();
    void startConfiguredServices();
    void restartAfterWaking();
    void windowDidBecomeKey();

    ApplicationPorts m_ports;
    RuleStore* m_store = nullptr;
    MultitouchService* m_touchService = nullptr;
    LaunchAtLoginManager* m_launchAtLogin = nullptr;
    SoftwareUpdateController* m_softwareUpdateController = nullptr;
    std::function<void()> m_openWindowHandler;
    bool m_isFirstLaunch;
    bool m_isWindowCloseTest;
    bool m_shouldSuppressInitialWindow = false;
    bool m_didFinishLaunching = false;
    std::uint64_t m_windowActivationGeneration = 0;
    DelayedTask m_activationRetry;
    DelayedTask m_afterClosing;
    std::vector<Subscription> m_observers;
    std::vector<Subscription> m_runtimeObservers;
};

}  // namespace kinesta
