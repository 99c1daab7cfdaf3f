#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "actions/ActionPorts.h"
#include "app/DesktopFindings.h"
#include "app/KeyRecording.h"
#include "app/LiveTrackpad.h"
#include "app/PlatformSettings.h"
#include "app/RunningApplication.h"
#include "app/WindowActionOutcomes.h"
#include "rules/SystemGestureWarningChecker.h"
#include "support/MainLoop.h"
#include "support/Result.h"

namespace kinesta {

/// A request of the terminal or the system: to end, to stop (Ctrl-Z), to read the settings again; or of the application
/// to the daemon: to end because the application acts on gestures from now on.
enum class ProgramSignal { end, stop, reload, yield };

/// Whether it is certain that no other process of this user acts on gestures.
enum class SingleInstanceClaim { certain, uncertain };

/// Where the output of the programs that actions start goes: nowhere, or to our own output if that is a log file or a
/// journal.
enum class ProgramOutput { nowhere, log };

/// The port to everything that one machine offers. Its parts are made at their first use. Main thread only.
class Desktop {
  public:
    /// Receives one sentence for the user.
    using Tell = std::function<void(const std::string&)>;

    virtual ~Desktop() = default;

    // The process and its terminal

    virtual MainLoop& mainLoop() = 0;
    virtual const Clock& clock() const = 0;
    /// Calls `handler` on the main thread for each of these signals, which then have no other effect. Call it at most
    /// once, and before any other part is used.
    virtual void catchSignals(const std::vector<ProgramSignal>& signals,
                              std::function<void(ProgramSignal)> handler) = 0;
    /// Lets writing to a closed pipe fail instead of ending the program.
    virtual void surviveClosedPipes() = 0;
    /// Turns this process into the graphical application with these arguments. Returns only if that is not possible:
    /// why.
    virtual Error becomeApplication(const std::vector<std::string>& arguments) = 0;
    /// The application that this person runs on this desktop, in another process.
    virtual RunningApplication& runningApplication() = 0;
    /// Makes this, a daemon, the one process that acts on gestures, until it ends. The error names the process that
    /// already does.
    virtual Result<SingleInstanceClaim> claimSingleInstance() = 0;
    /// Hides the cursor and shows the terminal's second screen until giveTerminalBack() or the end of the program.
    virtual void takeTerminal() = 0;
    virtual void giveTerminalBack() = 0;
    /// Stops the program as Ctrl-Z does, with the terminal restored meanwhile, and returns when the program continues.
    virtual void stopUntilContinued() = 0;
    /// The bundled examples; the folder may be missing.
    virtual std::filesystem::path examplesFolder() const = 0;
    /// The running system, for warnings about its own gestures.
    virtual GestureSystem gestureSystem() const = 0;

    // The settings

    /// `tell` receives why settings cannot be read or stored, in place of the one that is returned. Must be called
    /// before defaults() is first used.
    virtual Tell onSettingsProblem(Tell tell) = 0;
    virtual UserDefaults& defaults() = 0;
    /// Reads the stored settings again. Returns whether another process has changed a value.
    virtual bool reloadDefaults() = 0;
    /// Whether changes can be stored, as far as that can be known before one is made.
    virtual Outcome checkSaving() = 0;
    /// Whether the last change was stored, and why not.
    virtual Outcome lastSaving() = 0;
    /// Calls `onChange` when anyone changes the stored settings. False if the system does not offer that.
    virtual bool watchDefaults(std::function<void()> onChange) = 0;
    /// How the user changes a setting without a window: the end of a sentence, starting with "set".
    virtual std::string howToSet(std::string_view key, const std::string& value) const = 0;
    /// The folder of the settings, for files that belong to them. Created if it is missing.
    virtual Result<std::filesystem::path> settingsFolder() = 0;
    virtual PlatformSettings platformSettings() const = 0;

    // The trackpad

    /// Reads the recording or FIFO at `path` in place of a trackpad. Must be called before trackpad() is first used.
    virtual void useStream(std::string path) = 0;
    /// Reads contacts through the library at `path`, which offers what the trackpad framework of macOS does, in place
    /// of a trackpad. Must be called before trackpad() is first used.
    virtual void useMultitouchLibrary(std::string path) = 0;
    virtual LiveTrackpad& trackpad() = 0;
    /// All trackpads. Opens each for a moment.
    virtual ConnectedTrackpads connectedTrackpads() = 0;

    // Actions

    /// `tell` receives why something could not be done, also on other threads. Must be called before actionPorts() is
    /// first used.
    virtual void onActionProblem(Tell tell, ProgramOutput output) = 0;
    /// Valid until finishActions(). Shell commands are permitted by `settings`.
    virtual ActionPorts actionPorts(const UserDefaults& settings) = 0;
    /// Gets ready to post keys, so that the first action does not wait for it.
    virtual void prepareToPost() = 0;
    virtual ApplicationNotifications& notifications() = 0;
    virtual WindowActionOutcomes& windowOutcomes() = 0;
    /// Gives the desktop time to notice a new virtual keyboard or to read its last keys: for a process that posts right
    /// after its start or ends right after posting. Returns at once if there is no virtual keyboard.
    virtual void letDesktopCatchUp() = 0;
    /// Waits until every request has been handed over. No action can run afterwards.
    virtual void finishActions() = 0;

    // What works here

    /// One finding for each capability, in the order of the enumeration. May take seconds if services do not answer.
    virtual std::vector<DesktopFinding> findings() = 0;
    virtual const HomeFolders& homeFolders() const = 0;
    /// Why the key with this virtual key code and these event flags cannot be posted.
    virtual std::optional<Obstacle> obstacleToKey(std::uint16_t keyCode, std::uint64_t flags) = 0;
    /// Whether a shortcut with the key of this code and name reaches programs as the letter in its name. True if the
    /// name is not a letter.
    virtual bool typesLetterOf(std::uint16_t keyCode, const std::string& name) = 0;
    /// Whether tiling commands can move windows here. May ask the window manager.
    virtual bool tilesWindows() = 0;
    /// Valid until finishActions().
    virtual KeyRecording& keyRecording() = 0;
    /// Why the application at this absolute path cannot be started. The path must exist.
    virtual std::optional<Obstacle> obstacleToLaunching(const std::string& application) = 0;
};

}  // namespace kinesta
