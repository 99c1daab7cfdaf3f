#pragma once

#include <memory>
#include <optional>

#include "app/Desktop.h"
#include "feedback/NoActionCue.h"
#include "platform/linux/ApplicationClaim.h"
#include "platform/linux/LinuxActions.h"
#include "platform/linux/LinuxTrackpad.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "platform/linux/process/SignalListener.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "platform/linux/settings/FileWatcher.h"
#include "platform/posix/Terminal.h"
#include "support/SteadyClock.h"

namespace kinesta {

/// A Linux machine: it reads the touchpad from the kernel and settings from a file, and reaches the session through X,
/// D-Bus and uinput.
class LinuxDesktop final : public Desktop {
  public:
    struct Places {
        /// The person's settings file.
        std::filesystem::path settings;
        /// The bundled examples.
        std::filesystem::path examples;
        GestureSystem gestureSystem = GestureSystem::none;

        /// The places of the running session and program.
        static Places current();
    };

    /// The main loop must outlive this.
    LinuxDesktop(MainLoop& mainLoop, Places places) : m_mainLoop(mainLoop), m_places(std::move(places)) {}

    /// Shows the cue of each action. Without it, none is shown. Must be called before actionPorts(); `cue` must outlive
    /// every action.
    void setCue(ActionCuePresenting& cue) { m_cue = &cue; }

    /// The monitors with their work areas in pixels; none if they are not known.
    std::vector<EwmhMonitor> monitors() { return actions().monitors(); }

    MainLoop& mainLoop() override { return m_mainLoop; }
    const Clock& clock() const override { return m_clock; }
    void catchSignals(const std::vector<ProgramSignal>& signals, std::function<void(ProgramSignal)> handler) override;
    void surviveClosedPipes() override;
    Error becomeApplication(const std::vector<std::string>& arguments) override;
    RunningApplication& runningApplication() override { return sessionApplication(); }
    Result<SingleInstanceClaim> claimSingleInstance() override;
    /// Makes this the one application of the session, until it ends; see claimForApplication(). Nothing if another one
    /// runs.
    Result<std::optional<SingleInstanceClaim>> claimApplication(ApplicationOpening opening);
    /// What starts the application at login. Uses the actions' way to open things.
    LoginItemService& loginItem() { return actions().loginItem(); }
    void takeTerminal() override { m_terminal.emplace(); }
    void giveTerminalBack() override { m_terminal.reset(); }
    void stopUntilContinued() override;
    std::filesystem::path examplesFolder() const override { return m_places.examples; }
    GestureSystem gestureSystem() const override { return m_places.gestureSystem; }

    Tell onSettingsProblem(Tell tell) override { return std::exchange(m_onSettingsProblem, std::move(tell)); }
    UserDefaults& defaults() override { return fileDefaults(); }
    bool reloadDefaults() override { return fileDefaults().reload(); }
    Outcome checkSaving() override { return fileDefaults().checkSaving(); }
    Outcome lastSaving() override { return fileDefaults().lastSaving(); }
    /// Changes of settings no longer wait for the disk: for the window, where each keystroke is one.
    void saveInBackground();
    /// `tell` receives a problem with the settings again as soon as it is over.
    void onSettingsProblemSolved(Tell tell) { fileDefaults().onProblemSolved(std::move(tell)); }
    bool watchDefaults(std::function<void()> onChange) override;
    std::string howToSet(std::string_view key, const std::string& value) const override;
    Result<std::filesystem::path> settingsFolder() override;
    PlatformSettings platformSettings() const override;

    void useStream(std::string path) override { m_stream = std::move(path); }
    void useMultitouchLibrary(std::string path) override { m_multitouchLibrary = std::move(path); }
    LiveTrackpad& trackpad() override;
    ConnectedTrackpads connectedTrackpads() override;

    void onActionProblem(Tell tell, ProgramOutput output) override;
    ActionPorts actionPorts(const UserDefaults& settings) override { return actions().ports(settings, *m_cue); }
    void prepareToPost() override { actions().prepareToPost(); }
    ApplicationNotifications& notifications() override { return actions().notifications(); }
    WindowActionOutcomes& windowOutcomes() override { return actions().windowOutcomes(); }
    void letDesktopCatchUp() override { actions().letDesktopCatchUp(); }
    void finishActions() override { m_actions.reset(); }

    std::vector<DesktopFinding> findings() override { return actions().session().findings(); }
    const HomeFolders& homeFolders() const override { return m_homeFolders; }
    std::optional<Obstacle> obstacleToKey(std::uint16_t keyCode, std::uint64_t flags) override;
    bool typesLetterOf(std::uint16_t keyCode, const std::string& name) override;
    bool tilesWindows() override { return actions().tilesWindows(); }
    KeyRecording& keyRecording() override { return actions().keyRecording(); }
    std::optional<Obstacle> obstacleToLaunching(const std::string& application) override;

  private:
    FileUserDefaults& fileDefaults();
    LinuxActions& actions();
    SessionApplication& sessionApplication();

    MainLoop& m_mainLoop;
    NoActionCue m_noCue;
    ActionCuePresenting* m_cue = &m_noCue;
    Places m_places;
    SteadyClock m_clock;
    PosixHomeFolders m_homeFolders;
    Tell m_onSettingsProblem;
    Tell m_onActionProblem;
    ProgramOutput m_programOutput = ProgramOutput::nowhere;
    std::optional<std::string> m_stream;
    std::optional<std::string> m_multitouchLibrary;
    PointerEventBroadcaster m_noPointerEvents;  // of a multitouch library
    // Created at first use. Members that start threads come after the signals, because threads inherit the signal mask.
    std::optional<TerminalTakeover> m_terminal;
    std::optional<SignalListener> m_signals;
    std::optional<SingleInstance> m_instance;
    std::optional<SessionApplication> m_sessionApplication;
    std::optional<FileUserDefaults> m_defaults;
    std::optional<LinuxActions> m_actions;
    std::unique_ptr<LiveTrackpad> m_trackpad;
    std::function<void()> m_onDefaultsChange;
    std::optional<FileWatcher> m_watcher;
};

}  // namespace kinesta
