#include <thread>

#include "MacTest.h"
#include "platform/macos/MacDesktop.h"
#include "platform/macos/application/MacMainLoop.h"
#include "platform/macos/settings/MacUserDefaults.h"

namespace kinesta {
namespace {

class DesktopOnTheMac : public MacTest {
  protected:
    static MacProgramFiles files() { return MacProgramFiles::of("/Applications/Kinesta.app/Contents/Helpers/kinesta"); }
};

TEST_F(DesktopOnTheMac, GivesEveryPortAndLeavesNothing) {
    @autoreleasepool {
        MacMainLoop mainLoop;
        MacDesktop desktop(mainLoop, files());
        desktop.useMultitouchLibrary("/missing");
        desktop.catchSignals({ProgramSignal::reload}, [](ProgramSignal) {});
        desktop.onActionProblem([](const std::string&) {}, ProgramOutput::nowhere);

        EXPECT_FALSE(desktop.defaults().contains("gesturesEnabled"));
        EXPECT_FALSE(desktop.reloadDefaults());
        EXPECT_TRUE(desktop.watchDefaults([] {}));
        EXPECT_TRUE(desktop.lastSaving());
        EXPECT_EQ(desktop.howToSet("gesturesEnabled", "true"),
                  "set it in a terminal: defaults write com.orvane.kinesta gesturesEnabled -bool true");
        EXPECT_EQ(desktop.examplesFolder(), "/Applications/Kinesta.app/Contents/Resources/examples");
        EXPECT_EQ(desktop.gestureSystem(), GestureSystem::macOS);
        EXPECT_GT(desktop.clock().uptime(), 0);
        EXPECT_FALSE(desktop.runningApplication().isRunning());
        EXPECT_NE(desktop.loginItem().status(), LoginItemStatus::requiresApproval);

        const ConnectedTrackpads pads = desktop.connectedTrackpads();
        ASSERT_NE(pads.chosen(), nullptr);
        EXPECT_EQ(pads.chosen()->problem, "/missing cannot be loaded, so no trackpad can be read.");
        desktop.trackpad().contacts().start();
        EXPECT_EQ(desktop.trackpad().contacts().status().kind, TrackpadContactProviderStatus::Kind::unavailable);
        const PointerEventMonitor monitor = desktop.trackpad().pointerEvents().monitor(
            PointerEventScope::otherApplications, [](const PointerEvent&) {});

        const ActionPorts ports = desktop.actionPorts(desktop.defaults());
        EXPECT_FALSE(ports.permission.isTrusted());
        const Subscription requests = desktop.notifications().observe("test", [](ActionKind) {});
        const auto findings = desktop.findings();
        ASSERT_EQ(findings.size(), 6U);
        for (std::size_t i = 0; i < findings.size(); ++i)
            EXPECT_EQ(findings[i].capability, static_cast<DesktopCapability>(i));
        EXPECT_FALSE(findings[0].works);
        EXPECT_NE(findings[0].remedy, "");
        EXPECT_TRUE(desktop.obstacleToLaunching("/bin/sh"));
        EXPECT_TRUE(desktop.tilesWindows());
        desktop.prepareToPost();
        static_cast<void>(desktop.keyRecording());
        EXPECT_EQ(desktop.windowOutcomes().settle(0), WindowActionOutcomes::Outcome::unknown);
    }
    fakes::drainMainQueue();  // what was on its way finds no receiver
}

TEST_F(DesktopOnTheMac, WaitsAtItsEndForWhatItHasHandedOver) {
    @autoreleasepool {
        std::string problem;
        std::thread system;
        MacMainLoop mainLoop;
        {
            MacDesktop desktop(mainLoop, files());
            desktop.onActionProblem([&](const std::string& text) { problem = text; }, ProgramOutput::nowhere);
            desktop.actionPorts(desktop.defaults()).processes.launch("/missing/program", {});
            system = std::thread([] { fakes::drainMainQueue(); });
        }
        EXPECT_NE(problem, "");
        system.join();
    }
}

TEST_F(DesktopOnTheMac, SaysWhatATerminalCannotAskFor) {
    @autoreleasepool {
        MacRunningApplication none("/nowhere/kinesta", {});
        EXPECT_EQ(none.ask(ApplicationRequest::quit).error().message, "Kinesta does not run.");
        EXPECT_FALSE(none.report());
        MacMainLoop mainLoop;
        MacDesktop outsideOfABundle(mainLoop, MacProgramFiles::of("/usr/local/bin/kinesta"));
        EXPECT_EQ(outsideOfABundle.examplesFolder(), "/usr/local/share/kinesta/examples");
        EXPECT_NE(outsideOfABundle.becomeApplication({}).message.find("no part of Kinesta.app"), std::string::npos);
    }
}

}  // namespace
}  // namespace kinesta
