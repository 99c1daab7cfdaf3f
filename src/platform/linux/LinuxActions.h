#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "app/KeyRecording.h"
#include "app/LoginItemService.h"
#include "platform/linux/launching/PosixProcessLauncher.h"
#include "platform/linux/session/DesktopSession.h"
#include "platform/linux/windows/EwmhSnapshot.h"
#include "platform/linux/windows/WindowOutcomes.h"

namespace kinesta {

/// Everything that actions need from a Linux desktop, assembled for the current session. Main thread only.
class LinuxActions {
  public:
    /// Receives one sentence that says why something could not be done. Also called on other threads.
    using Log = std::function<void(const std::string&)>;

    using Output = PosixProcessLauncher::Output;

    /// Does not contact the desktop yet: an action waits only for what it needs. `output` is where the output of
    /// started programs goes. Clock and defaults must outlive this.
    LinuxActions(const Clock& clock, const UserDefaults& defaults, const Log& log, Output output = Output::nowhere);
    ~LinuxActions();

    /// Makes the virtual device or reads the layout now, so that the first stroke does not wait for it.
    void prepareToPost();

    /// Valid as long as this lives. `settings` decide whether shell commands may run.
    ActionPorts ports(const UserDefaults& settings, ActionCuePresenting& cue);
    InProcessNotifications& notifications();

    /// Waits long enough for the desktop to notice a new virtual keyboard, or to read its last keys. Returns at once if
    /// there is no virtual keyboard.
    void letDesktopCatchUp();

    WindowOutcomes& windowOutcomes();
    LoginItemService& loginItem();

    /// The monitors with their work areas; none without an X server that answers at once.
    std::vector<EwmhMonitor> monitors();

    /// Whether a shortcut with this key, which has this name, reaches programs as the letter that it names. False if no
    /// layout of the keyboard types that letter with the key that is posted. True for keys that name no letter, and if
    /// no layout is known.
    bool typesLetterOf(std::uint16_t keyCode, const std::string& name);

    /// Whether the window manager moves windows for other programs.
    bool tilesWindows();
    KeyRecording& keyRecording();

    /// How often we have waited for the X server so far.
    unsigned roundTrips() const;

    /// What kind of session this is, and what works in it now. May take seconds if services do not answer.
    DesktopSession session();

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace kinesta
