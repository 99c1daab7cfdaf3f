#include "app/ApplicationController.h"

#include <utility>

#include "support/Translation.h"

namespace kinesta {

ApplicationController::ApplicationController(const ApplicationPorts& ports)
    : m_ports(ports),
      m_isFirstLaunch(ports.defaults.boolean(firstLaunchKey) != true),
      m_isWindowCloseTest(ports.bundle.contains(windowCloseTestKey)) {}

void ApplicationController::configureRuntime(RuleStore& store, MultitouchService& touchService,
                                             LaunchAtLoginManager& launchAtLogin,
                                             SoftwareUpdateController& softwareUpdateController) {
    m_store = &store;
    m_touchService = &touchService;
    m_launchAtLogin = &launchAtLogin;
    m_softwareUpdateController = &softwareUpdateController;
    m_runtimeObservers.clear();
    const auto follow = [this](const auto& published) {
        m_runtimeObservers.push_back(published.observe([this](const auto&) { updateStatusIcon(); }));
    };
    follow(touchService.isGestureEnabled());
    follow(touchService.status());
    follow(launchAtLogin.isEnabled());
    follow(launchAtLogin.requiresApproval());
    follow(softwareUpdateController.canCheckForUpdates());
    follow(store.rules());
    if (!m_didFinishLaunching)
        return;
    updateStatusIcon();
    startConfiguredServices();
}

void ApplicationController::applicationWillFinishLaunching() {
    m_ports.activationPolicy.set(ActivationPolicy::Kind::accessory);
}

void ApplicationController::applicationDidFinishLaunching(LaunchKind kind) {
    m_ports.statusItem.create({.clicked = [this](StatusItemClick click) { statusItemClicked(click); },
                               .chosen = [this](StatusMenuCommand command) { perform(command); }});
    m_ports.statusItem.setToolTip("Kinesta");
    m_didFinishLaunching = true;
    updateStatusIcon();
    installObservers();
    // Someone who has never seen the window must find it at the first start by hand.
    m_shouldSuppressInitialWindow = !m_isWindowCloseTest && (!m_isFirstLaunch || kind == LaunchKind::inBackground);
    if (m_shouldSuppressInitialWindow) {
        suppressInitialConfigurationWindow();
    } else {
        m_ports.defaults.setBoolean(firstLaunchKey, true);
        showConfigurationWindow();
    }
    startConfiguredServices();
}

void ApplicationController::installObservers() {
    const auto observe = [this](ApplicationEvent event, void (ApplicationController::*handler)()) {
        m_observers.push_back(m_ports.events.observe(event, [this, handler] { (this->*handler)(); }));
    };
    m_observers.push_back(m_ports.events.observe(ApplicationEvent::windowWillClose, [this] {
        ++m_windowActivationGeneration;  // an attempt that waits would show it again
        // The window counts as visible until it has closed.
        m_afterClosing = m_ports.mainThread.after(std::chrono::nanoseconds::zero(),
                                                  [this] { hideFromAppSwitcherIfWindowIsClosed(); });
    }));
    observe(ApplicationEvent::windowDidBecomeKey, &ApplicationController::windowDidBecomeKey);
    m_observers.push_back(m_ports.events.observe(ApplicationEvent::windowDidChangeVisibility, [this] {
        if (m_ports.window.isMiniaturized())
            ++m_windowActivationGeneration;  // the person has put it away
        updateStatusIcon();
    }));
    m_observers.push_back(m_ports.events.observe(ApplicationEvent::didBecomeActive, [this] {
        // The person may come back from the system's list of login items.
        if (m_launchAtLogin)
            m_launchAtLogin->refresh();
    }));
    observe(ApplicationEvent::didWake, &ApplicationController::restartAfterWaking);
    observe(ApplicationEvent::reopened, &ApplicationController::applicationShouldHandleReopen);
}

void ApplicationController::statusItemClicked(StatusItemClick click) {
    if (click.button == StatusItemClick::Button::right || click.isControlHeld)
        m_ports.statusItem.openMenu();
    else
        toggleConfigurationWindow();
}

void ApplicationController::perform(StatusMenuCommand command) {
    switch (command) {
        case StatusMenuCommand::none:
            return;
        case StatusMenuCommand::toggleGestureRecognition:
            return toggleGestureRecognition();
        case StatusMenuCommand::toggleLaunchAtLogin:
            return toggleLaunchAtLogin();
        case StatusMenuCommand::toggleConfigurationWindow:
            return toggleConfigurationWindow();
        case StatusMenuCommand::checkForUpdates:
            return checkForUpdates();
        case StatusMenuCommand::quitApplication:
            return quit();
    }
}

void ApplicationController::toggleGestureRecognition() {
    if (m_touchService)
        m_touchService->setGestureEnabled(!m_touchService->isGestureEnabled().value());
}

void ApplicationController::toggleLaunchAtLogin() {
    if (!m_launchAtLogin)
        return;
    if (m_launchAtLogin->requiresApproval().value())
        m_launchAtLogin->openLoginItemSettings();
    else
        m_launchAtLogin->setEnabled(!m_launchAtLogin->isEnabled().value());
}

void ApplicationController::toggleConfigurationWindow() {
    if (isWindowShown())
        hideConfigurationWindow();
    else
        showConfigurationWindow();
}

void ApplicationController::showConfigurationWindow() {
    prepareToShowWindow();
    ++m_windowActivationGeneration;
    if (!m_ports.window.exists() && m_openWindowHandler)
        m_openWindowHandler();
    attemptWindowActivation();
    if (m_ports.activationPolicy.losesRequests())
        retryWindowActivation();
    updateStatusIcon();
}

void ApplicationController::hideConfigurationWindow() {
    ++m_windowActivationGeneration;  // an attempt that waits would show it again
    m_ports.window.orderOut();
    hideFromAppSwitcherIfWindowIsClosed();
}

void ApplicationController::checkForUpdates() {
    if (m_softwareUpdateController)
        m_softwareUpdateController->checkForUpdates();
}

void ApplicationController::quit() { m_ports.termination.terminate(); }

std::string ApplicationController::statusLine() const {
    if (!m_touchService)
        return TRANSLATABLE("Starting gesture recognition…");
    if (!m_touchService->isGestureEnabled().value())
        return TRANSLATABLE("Gesture recognition is off");
    const auto& status = m_touchService->status().value();
    switch (status.kind) {
        case TrackpadContactProviderStatus::Kind::listening:
            return TRANSLATABLE("Trackpad listening");
        case TrackpadContactProviderStatus::Kind::stopped:
            return TRANSLATABLE("Trackpad stopped");
        case TrackpadContactProviderStatus::Kind::unavailable:
            break;
    }
    return status.message;
}

StatusMenu ApplicationController::menu() const {
    using Command = StatusMenuCommand;
    const bool needsApproval = m_launchAtLogin && m_launchAtLogin->requiresApproval().value();
    const StatusMenuItem separator;
    return {{.title = translated("Gestures enabled"),
             .command = Command::toggleGestureRecognition,
             .isEnabled = m_touchService != nullptr,
             .isChecked = m_touchService && m_touchService->isGestureEnabled().value(),
             .isCheckable = true},
            {.title = needsApproval ? translated("Launch at Login (Approval Required)") : translated("Launch at Login"),
             .command = Command::toggleLaunchAtLogin,
             .isEnabled = m_launchAtLogin != nullptr,
             .isChecked = m_launchAtLogin && m_launchAtLogin->isEnabled().value(),
             .isCheckable = true},
            {.title = translated(statusLine())},
            separator,
            {.title = isWindowShown() ? translated("Hide Kinesta") : translated("Show Kinesta"),
             .command = Command::toggleConfigurationWindow,
             .isEnabled = true},
            {.title = translated("Check for Updates…"),
             .command = Command::checkForUpdates,
             .isEnabled = m_softwareUpdateController && m_softwareUpdateController->canCheckForUpdates().value()},
            separator,
            {.title = translated("Quit"), .command = Command::quitApplication, .isEnabled = true}};
}

bool ApplicationController::isWindowShown() const {
    return m_ports.window.isVisible() && !m_ports.window.isMiniaturized();
}

void ApplicationController::updateStatusIcon() {
    if (m_didFinishLaunching) {
        const bool isEnabled = m_touchService && m_touchService->isGestureEnabled().value();
        m_ports.statusItem.setState(
            isEnabled, isEnabled ? translated("Kinesta, gestures enabled") : translated("Kinesta, gestures disabled"));
        m_ports.statusItem.setMenu(menu());
    }
    if (onChange)
        onChange();
}

void ApplicationController::hideFromAppSwitcherIfWindowIsClosed() {
    if (!m_ports.window.isVisible() && !m_ports.window.isMiniaturized())
        m_ports.activationPolicy.set(ActivationPolicy::Kind::accessory);
    updateStatusIcon();
    if (m_isWindowCloseTest && m_ports.activationPolicy.kind() == ActivationPolicy::Kind::accessory)
        quit();
}

void ApplicationController::prepareToShowWindow() {
    if (m_ports.activationPolicy.kind() != ActivationPolicy::Kind::regular)
        m_ports.activationPolicy.set(ActivationPolicy::Kind::regular);
}

void ApplicationController::attemptWindowActivation() {
    m_ports.activationPolicy.activateIgnoringOtherApplications();
    m_ports.window.makeKeyAndOrderFront();
}

void ApplicationController::retryWindowActivation() { activateOpenedWindow(maximumActivationAttempts); }

bool ApplicationController::hasFocus() const { return m_ports.window.isKey() && m_ports.activationPolicy.isActive(); }

void ApplicationController::activateOpenedWindow(int attemptsRemaining) {
    if (attemptsRemaining == 0 || hasFocus())
        return;
    const std::uint64_t generation = m_windowActivationGeneration;
    m_activationRetry = m_ports.mainThread.after(activationRetryInterval, [this, attemptsRemaining, generation] {
        if (generation != m_windowActivationGeneration || hasFocus())
            return;
        attemptWindowActivation();
        activateOpenedWindow(attemptsRemaining - 1);
    });
}

void ApplicationController::suppressInitialConfigurationWindow() {
    if (m_ports.window.isVisible())
        m_ports.window.orderOut();
    m_ports.activationPolicy.set(ActivationPolicy::Kind::accessory);
}

void ApplicationController::startConfiguredServices() {
    if (m_touchService)
        m_touchService->startIfEnabled();
    if (m_softwareUpdateController)
        m_softwareUpdateController->start();
}

void ApplicationController::restartAfterWaking() {
    if (!m_touchService)
        return;
    // start() does nothing while it listens, but a pad may be dead after sleep.
    m_touchService->stop();
    m_touchService->startIfEnabled();
}

void ApplicationController::windowDidBecomeKey() {
    if (hasFocus())
        ++m_windowActivationGeneration;  // what the person does with it from now on counts
    updateStatusIcon();
    if (m_isWindowCloseTest)
        m_ports.window.performClose();
}

}  // namespace kinesta
