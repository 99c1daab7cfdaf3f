#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <thread>

#include "MacTest.h"
#include "platform/macos/MacDesktop.h"
#include "platform/macos/application/MacMainLoop.h"
#include "platform/macos/settings/MacUserDefaults.h"
#include "platform/posix/BrokenPipes.h"
#include "support/TemporaryFolder.h"

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

/// Where other processes of the person may be the one instance. They leave no trace when they end.
class OtherInstances : public DesktopOnTheMac {
  protected:
    OtherInstances() {
        ::setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
        ::signal(SIGCHLD, SIG_IGN);
    }
    ~OtherInstances() override {
        ::signal(SIGCHLD, SIG_DFL);
        ::unsetenv("XDG_RUNTIME_DIR");
    }

    /// A process that `begin` makes what it is, until a signal ends it.
    static pid_t start(const std::function<void()>& begin) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        const pid_t process = ::fork();
        if (process == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            begin();
            EXPECT_EQ(::write(ready[1], "", 1), 1);
            for (;;)
                ::pause();
        }
        ::close(ready[1]);
        char byte = 0;
        EXPECT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
        return process;
    }
    static pid_t start(SingleInstance::Role role) {
        return start([role] { static auto claimed = SingleInstance::claim("/nowhere/kinesta", role); });
    }
    /// "claimed", "runs" if another application does, or why it cannot be claimed.
    static std::string claim(ApplicationOpening opening) {
        @autoreleasepool {
            MacMainLoop mainLoop;
            MacDesktop desktop(mainLoop, MacProgramFiles::of("/usr/local/bin/kinesta"));
            const auto claimed = desktop.claimApplication(opening);
            if (!claimed)
                return claimed.error().message;
            return *claimed == SingleInstanceClaim::certain ? "claimed" : "runs";
        }
    }

    const TemporaryFolder folder;
    MacRunningApplication application{"/nowhere/kinesta", {}};
};

TEST_F(OtherInstances, KeepTheirPlaceOrMakeRoom) {
    const pid_t running = start(SingleInstance::Role::application);
    EXPECT_EQ(claim(ApplicationOpening::inBackground), "runs");
    EXPECT_EQ(claim(ApplicationOpening::withWindow),
              "This program is no part of Kinesta.app, so it cannot find the application.");
    EXPECT_NE(application.report().error().message.find("process " + std::to_string(running)), std::string::npos);
    EXPECT_TRUE(application.ask(ApplicationRequest::quit));
    EXPECT_FALSE(application.isRunning());
    EXPECT_EQ(claim(ApplicationOpening::withWindow), "claimed") << "the files are still there";

    start(SingleInstance::Role::daemon);
    EXPECT_FALSE(application.isRunning());
    EXPECT_EQ(claim(ApplicationOpening::inBackground), "claimed");
}

TEST_F(OtherInstances, MayEndWhileTheyAreLookedAt) {
    const std::string lock = folder / "kinesta.lock";
    // Holds the place without a role, as at the begin and end of a process.
    start([&] {
        ::flock(::open(lock.c_str(), O_RDWR | O_CREAT, 0600), LOCK_EX);
        ::ualarm(30000, 0);
    });
    EXPECT_EQ(claim(ApplicationOpening::withWindow), "claimed");
}

TEST_F(OtherInstances, AreNotTakenForEnded) {
    const pid_t stubborn = start([] { ::signal(SIGUSR1, SIG_IGN); });
    EXPECT_FALSE(endProcess(stubborn, SIGUSR1, std::chrono::milliseconds(20)));
    EXPECT_TRUE(endProcess(stubborn, SIGKILL, std::chrono::seconds(20)));
    EXPECT_TRUE(endProcess(stubborn, SIGKILL, std::chrono::seconds(20)));
    EXPECT_FALSE(endProcess(1, 0, std::chrono::milliseconds(20))) << "it may be another person's";
}

TEST_F(OtherInstances, StartWithoutWhatThisOneSurvives) {
    endQuietlyOnClosedPipe();
    surviveBrokenPipes();
    ::signal(SIGCHLD, SIG_DFL);
    EXPECT_EQ(::raise(SIGPIPE), 0);
    const int status = std::system("kill -PIPE $$");
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGPIPE);
}

}  // namespace
}  // namespace kinesta
