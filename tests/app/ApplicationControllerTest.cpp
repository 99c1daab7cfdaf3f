#include "app/ApplicationController.h"

#include <gtest/gtest.h>

#include "support/FakeShell.h"
#include "support/GestureRig.h"
#include "support/Translation.h"

namespace kinesta::testing {
namespace {

using std::chrono::milliseconds;

/// A controller with everything that it holds, on a fake system and in virtual time.
struct ApplicationControlling : ::testing::Test {
    ApplicationController& make() {
        controller.emplace(ApplicationPorts{rig.mainThread, rig.defaults, shell, events, shell, shell, shell, shell});
        controller->configureWindowOpening([this] {
            shell.isMade = shell.isShown = true;
            shell.log.add("open");
        });
        return *controller;
    }
    void configure() { controller->configureRuntime(store, rig.launch(), login, updates); }
    /// As on a later start, by hand.
    ApplicationController& launch() {
        rig.defaults.setBoolean("hasCompletedFirstLaunch.v1", true);
        make().applicationWillFinishLaunching();
        configure();
        controller->applicationDidFinishLaunching();
        shell.log.take();
        return *controller;
    }
    std::string takeCalls() { return joined(shell.log.take()); }
    std::string takeCallsAfter(milliseconds time) {
        // Tasks that are due at this very time run, too.
        rig.mainThread.advanceTo(rig.mainThread.now() + time + std::chrono::nanoseconds(1));
        return takeCalls();
    }
    /// The shown menu: "-" before what is off, "*" before what is checked.
    std::string menu() const {
        std::string text;
        for (const StatusMenuItem& item : shell.shownMenu)
            text += (item.isSeparator()
                         ? "--"
                         : (item.isEnabled ? "" : "-") + std::string(item.isChecked ? "*" : "") + item.title) +
                    "|";
        return text;
    }

    FakeShell shell;
    ApplicationEvents events;
    GestureRig rig;
    RuleStore store{rig.defaults};
    LaunchAtLoginManager login{shell};
    SoftwareUpdateController updates{
        (shell.bundle = {{"SUFeedURL", "HTTPS://updates.example/feed"},
                         {"SUPublicEDKey", "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBkaGxwdHh8="}},
         shell),
        [this](const UpdateConfiguration&) { return std::make_unique<FakeUpdater>(shell); }};
    std::optional<ApplicationController> controller;
};

TEST_F(ApplicationControlling, ShowsTheWindowAtTheFirstLaunchOnly) {
    make().applicationWillFinishLaunching();
    controller->applicationDidFinishLaunching(ApplicationController::LaunchKind::inBackground);
    EXPECT_EQ(takeCalls(), "accessory; status item; tool tip Kinesta; accessory");
    EXPECT_FALSE(rig.defaults.contains("hasCompletedFirstLaunch.v1")) << "the window has not been shown yet";

    make().applicationWillFinishLaunching();
    configure();
    controller->applicationDidFinishLaunching();
    EXPECT_EQ(takeCalls(), "accessory; status item; tool tip Kinesta; regular; open; activate; front; start updater");
    EXPECT_EQ(rig.defaults.boolean("hasCompletedFirstLaunch.v1"), true);
    EXPECT_EQ(joined(rig.provider.calls), "start");

    make().applicationDidFinishLaunching();
    EXPECT_EQ(takeCalls(), "status item; tool tip Kinesta; out; accessory");
}

TEST_F(ApplicationControlling, ShowsTheMenuOfEachState) {
    rig.defaults.setBoolean("hasCompletedFirstLaunch.v1", true);
    make().applicationDidFinishLaunching();
    EXPECT_EQ(menu(),
              "-Gestures enabled|-Launch at Login|-Starting gesture recognition…|--|Show Kinesta|"
              "-Check for Updates…|--|Quit|");
    rig.provider.statusAfterStart = TrackpadContactProviderStatus::unavailable("No trackpad is connected.");
    configure();
    EXPECT_EQ(menu(),
              "*Gestures enabled|Launch at Login|-No trackpad is connected.|--|Show Kinesta|Check for Updates…|--|"
              "Quit|");
    EXPECT_EQ(shell.label, "Kinesta, gestures enabled");
    rig.provider.becomes(TrackpadContactProviderStatus::listening());
    rig.service->contactProviderDidChangeStatus();
    EXPECT_NE(menu().find("|-Trackpad listening|"), std::string::npos);
    rig.service->stop();
    EXPECT_NE(menu().find("|-Trackpad stopped|"), std::string::npos);

    shell.login = LoginItemStatus::requiresApproval;
    events.post(ApplicationEvent::didBecomeActive);
    shell.canCheck.set(false);
    shell.handlers.chosen(StatusMenuCommand::toggleGestureRecognition);
    shell.handlers.clicked({});
    EXPECT_EQ(menu(),
              "Gestures enabled|Launch at Login (Approval Required)|-Gesture recognition is off|--|Hide Kinesta|"
              "-Check for Updates…|--|Quit|");
    EXPECT_EQ(shell.label, "Kinesta, gestures disabled");
    shell.isMinimized = true;
    events.post(ApplicationEvent::windowDidChangeVisibility);
    EXPECT_NE(menu().find("|Show Kinesta|"), std::string::npos);

    setTranslator([](std::string_view text) { return "«" + std::string(text).substr(0, 4) + "»"; });
    events.post(ApplicationEvent::windowDidChangeVisibility);
    EXPECT_EQ(menu(), "«Gest»|«Laun»|-«Gest»|--|«Show»|-«Chec»|--|«Quit»|");
    EXPECT_EQ(controller->statusLine(), "Gesture recognition is off") << "kinesta ctl stays English";
    setTranslator({});
}

TEST_F(ApplicationControlling, DoesWhatIsClickedAndChosen) {
    launch();
    shell.handlers.clicked({.button = StatusItemClick::Button::right});
    shell.handlers.clicked({.isControlHeld = true});
    EXPECT_EQ(takeCalls(), "menu; menu");
    shell.handlers.clicked({});
    EXPECT_EQ(takeCalls(), "regular; open; activate; front");
    shell.isMinimized = true;
    shell.handlers.clicked({});
    EXPECT_EQ(takeCalls(), "activate; front") << "a miniaturized window comes back";
    shell.handlers.clicked({});
    EXPECT_EQ(takeCalls(), "out; accessory");

    for (const auto command : {StatusMenuCommand::checkForUpdates, StatusMenuCommand::toggleLaunchAtLogin,
                               StatusMenuCommand::quitApplication})
        shell.handlers.chosen(command);
    EXPECT_EQ(takeCalls(), "check; terminate");
    EXPECT_TRUE(login.isEnabled().value());
    shell.loginFailure = "The folder cannot be written.";
    shell.handlers.chosen(StatusMenuCommand::toggleLaunchAtLogin);
    EXPECT_TRUE(login.isEnabled().value());
    EXPECT_EQ(login.errorMessage().value(), "The folder cannot be written.");
    shell.login = LoginItemStatus::requiresApproval;
    login.refresh();
    shell.handlers.chosen(StatusMenuCommand::toggleLaunchAtLogin);
    EXPECT_EQ(takeCalls(), "login settings");
    EXPECT_EQ(login.errorMessage().value(), std::nullopt);
}

TEST_F(ApplicationControlling, AsksAgainForFocusUntilItHasIt) {
    launch();
    shell.takesFocus = false;
    controller->showConfigurationWindow();
    EXPECT_EQ(takeCalls(), "regular; open; activate; front");
    EXPECT_EQ(takeCallsAfter(milliseconds(49)), "");
    EXPECT_EQ(takeCallsAfter(milliseconds(1)), "activate; front");
    EXPECT_EQ(takeCallsAfter(milliseconds(1000)), "activate; front; activate; front; activate; front; activate; front");

    controller->showConfigurationWindow();
    takeCalls();
    shell.takesFocus = true;
    EXPECT_EQ(takeCallsAfter(milliseconds(1000)), "");
    shell.takesFocus = false;
    controller->showConfigurationWindow();
    controller->hideConfigurationWindow();
    takeCalls();
    EXPECT_EQ(takeCallsAfter(milliseconds(1000)), "") << "an attempt that waited would show the window again";

    for (const bool gotFocusFirst : {true, false}) {
        controller->showConfigurationWindow();
        takeCalls();
        shell.takesFocus = gotFocusFirst;
        events.post(ApplicationEvent::windowDidBecomeKey);
        shell.takesFocus = false;
        shell.isMinimized = true;
        if (!gotFocusFirst)
            events.post(ApplicationEvent::windowDidChangeVisibility);
        EXPECT_EQ(takeCallsAfter(milliseconds(1000)), "") << "the person has minimized it";
    }
}

TEST_F(ApplicationControlling, FollowsWindowsSleepAndReopening) {
    launch();
    events.post(ApplicationEvent::reopened);
    takeCalls();
    events.post(ApplicationEvent::windowWillClose);
    EXPECT_EQ(takeCallsAfter(milliseconds(1)), "") << "another window was closed";
    events.post(ApplicationEvent::windowWillClose);
    shell.isShown = false;
    EXPECT_EQ(takeCallsAfter(milliseconds(1)), "accessory");

    rig.provider.calls.clear();
    events.post(ApplicationEvent::didWake);
    EXPECT_EQ(joined(rig.provider.calls), "stop; start");
    rig.service->setGestureEnabled(false);
    rig.provider.calls.clear();
    events.post(ApplicationEvent::didWake);
    EXPECT_EQ(joined(rig.provider.calls), "stop");
}

TEST_F(ApplicationControlling, ClosesItsWindowInTheTestBuild) {
    shell.bundle.emplace("KinestaWindowCloseTest", "");
    rig.defaults.setBoolean("hasCompletedFirstLaunch.v1", true);
    make().applicationDidFinishLaunching();
    takeCalls();
    events.post(ApplicationEvent::windowDidBecomeKey);
    events.post(ApplicationEvent::windowWillClose);
    EXPECT_EQ(takeCallsAfter(milliseconds(1)), "close; accessory; terminate");
}

TEST(SoftwareUpdateController, AcceptsOnlyASecureFeedWithAKey) {
    const std::string key = "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBkaGxwdHh8=";
    const std::string noFeed = "The update feed is not configured in this build.";
    const std::string noKey = "Update signing is not configured in this development build.";
    for (const auto& [feed, publicKey, message] : std::vector<std::array<std::string, 3>>{
             {"https://a.example/feed.xml", key, ""},
             {"HTTPS://[::1]:8443", key, ""},
             {"http://a.example/feed.xml", key, noFeed},
             {"https:///feed.xml", key, noFeed},
             {"https://user@:80/", key, noFeed},
             {"https:a.example", key, noFeed},
             {"https://a example/", key, noFeed},
             {"feed", "short", noFeed},
             {"https://a.example", "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBkaGxwdHg==", noKey},
             {"https://a.example", "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBkaGxwdHh8g", noKey},
             {"https://a.example", key.substr(0, 43), noKey},
             {"https://a.example", key.substr(0, 42) + "9=", noKey},  // bits beyond the last byte
             {"https://a.example", "AAECAwQFBgcICQoLDA0ODxAREhMUFRYXGBka GxwdHh8", noKey}}) {
        FakeShell shell;
        shell.bundle = {{"SUFeedURL", feed}, {"SUPublicEDKey", publicKey}};
        std::string keyBytes;
        SoftwareUpdateController controller(shell, [&](const UpdateConfiguration& configuration) {
            keyBytes = configuration.publicKey;
            return std::make_unique<FakeUpdater>(shell);
        });
        EXPECT_EQ(controller.configurationMessage().value().value_or(""), message) << feed;
        EXPECT_EQ(controller.isAvailable().value(), message.empty());
        controller.start();
        controller.start();
        controller.checkForUpdates();
        EXPECT_EQ(joined(shell.log.take()), message.empty() ? "start updater; check" : "");
        EXPECT_EQ(controller.canCheckForUpdates().value(), message.empty());
        SoftwareUpdateController without(shell, [](const UpdateConfiguration&) { return nullptr; });
        without.start();
        EXPECT_TRUE(!without.isAvailable().value() && without.configurationMessage().value());
        if (message.empty()) {
            EXPECT_EQ(keyBytes.size() * 100 + static_cast<std::size_t>(keyBytes.back()), 3231U);
        }
    }
}

}  // namespace
}  // namespace kinesta::testing
