#pragma once

#include <memory>
#include <optional>

#include "app/ApplicationOpening.h"
#include "app/Desktop.h"
#include "app/LoginItemService.h"
#include "feedback/NoActionCue.h"
#include "platform/macos/MacClock.h"
#include "platform/macos/MacProgramFiles.h"
#include "platform/macos/MacRunningApplication.h"
#include "platform/posix/SingleInstance.h"
#include "platform/posix/Terminal.h"

namespace kinesta {

class MacSignalListener;
class MacUserDefaults;

/// A Mac: it reads the trackpad through the system's private framework and settings from the user defaults, and reaches
/// other programs through events and the accessibility interface.
class MacDesktop final : public Desktop {
  public:
    /// Identifies the application to the system; also the domain of its settings.
    static constexpr const char* kIdentifier = "com.orvane.kinesta";

    /// The main loop must outlive this.
    MacDesktop(MainLoop& mainLoop, MacProgramFiles files);
    ~MacDesktop() override;
    MacDesktop(const MacDesktop&) = delete;
    MacDesktop& operator=(const MacDesktop&) = delete;

    /// Shows the cue of each action. Without it, none is shown. Must be called before actionPorts(); `cue` must outlive
    /// every action.
    void setCue(ActionCuePresenting& cue) { m_cue = &cue; }

    MainLoop& mainLoop() override { return m_mainLoop; }
    const Clock& clock() const override { return m_clock; }
    void catchSignals(const std::vector<ProgramSignal>& signals, std::function<void(ProgramSignal)> handler) override;
    void surviveClosedPipes() override;
    Error becomeApplication(const std::vector<std::string>& arguments) override;
    RunningApplication& runningApplication() override { return m_runningApplication; }
    Result<SingleInstanceClaim> claimSingleInstance() override;
    /// Makes this the one application of the person, until it ends. A daemon that runs is asked to end. Nothing if
    /// another application runs: it has shown its window, unless the opening is in the background.
    Result<std::optional<SingleInstanceClaim>> claimApplication(ApplicationOpening opening);
    LoginItemService& loginItem() { return *m_loginItem; }
    void takeTerminal() override { m_terminal.emplace(); }
    void giveTerminalBack() override { m_terminal.reset(); }
    void stopUntilContinued() override;
    std::filesystem::path examplesFolder() const override { return m_files.examples(); }
    GestureSystem gestureSystem() const override { return GestureSystem::macOS; }

    Tell onSettingsProblem(Tell tell) override { return std::exchange(m_onSettingsProblem, std::move(tell)); }
    UserDefaults& defaults() override;
    bool reloadDefaults() override;
    Outcome checkSaving() override { return success(); }
    Outcome lastSaving() override;
    bool watchDefaults(std::function<void()> onChange) override;
    std::string howToSet(std::string_view key, const std::string& value) const override;
    Result<std::filesystem::path> settingsFolder() override;
    PlatformSettings platformSettings() const override { return {}; }

    void useStream(std::string path) override { m_stream = std::move(path); }
    void useMultitouchLibrary(std::string path) override { m_multitouchLibrary = std::move(path); }
    LiveTrackpad& trackpad() override;
    ConnectedTrackpads connectedTrackpads() override;

    void onActionProblem(Tell tell, ProgramOutput output) override;
    ActionPorts actionPorts(const UserDefaults& settings) override;
    void prepareToPost() override;
    ApplicationNotifications& notifications() override;
    WindowActionOutcomes& windowOutcomes() override;
    /// Events are handed over when they are posted.
    void letDesktopCatchUp() override {}
    void finishActions() override;

    std::vector<DesktopFinding> findings() override;
    const HomeFolders& homeFolders() const override;
    /// A Mac has every key that a rule can name.
    std::optional<Obstacle> obstacleToKey(std::uint16_t, std::uint64_t) override { return std::nullopt; }
    /// Programs take the Latin letters that are under those of another alphabet.
    bool typesLetterOf(std::uint16_t, const std::string&) override { return true; }
    bool tilesWindows() override;
    KeyRecording& keyRecording() override;
    std::optional<Obstacle> obstacleToLaunching(const std::string& application) override;

  private:
    struct Actions;

    MacUserDefaults& macDefaults();
    Actions& actions();
    /// What the one instance is claimed with.
    std::filesystem::path claimPlace() const { return m_settingsFolder / "kinesta"; }

    MainLoop& m_mainLoop;
    MacProgramFiles m_files;
    std::filesystem::path m_settingsFolder;
    MacClock m_clock;
    NoActionCue m_noCue;
    ActionCuePresenting* m_cue = &m_noCue;
    MacRunningApplication m_runningApplication;
    std::unique_ptr<HomeFolders> m_homeFolders;
    std::unique_ptr<LoginItemService> m_loginItem;
    Tell m_onSettingsProblem;
    Tell m_onActionProblem;
    std::optional<std::string> m_stream;
    std::string m_multitouchLibrary;
    // Created at first use.
    std::optional<TerminalTakeover> m_terminal;
    std::unique_ptr<MacSignalListener> m_signals;
    std::optional<SingleInstance> m_instance;
    std::unique_ptr<MacUserDefaults> m_defaults;
    std::unique_ptr<Actions> m_actions;
    std::unique_ptr<PointerEventMonitoring> m_pointerEvents;
    std::unique_ptr<LiveTrackpad> m_trackpad;
};

}  // namespace kinesta
