#pragma once

#include <functional>
#include <memory>
#include <string>

#include "actions/ActionPorts.h"
#include "actions/InProcessNotifications.h"
#include "platform/linux/launching/PosixProcessLauncher.h"
#include "platform/linux/session/DesktopSession.h"
#include "platform/linux/windows/WindowOutcomes.h"

namespace kinesta {

/// Everything that actions need of a Linux desktop, put together for the session that we are in. Main thread only.
class LinuxActions {
  public:
    /// Receives one sentence that says why something could not be done. Also called on other threads.
    using Log = std::function<void(const std::string&)>;

    using Output = PosixProcessLauncher::Output;

    /// Asks nothing of the desktop yet: an action waits only for what it needs. `output` is that of the programs that
    /// are started. Clock and defaults must outlive this.
    LinuxActions(const Clock& clock, const UserDefaults& defaults, const Log& log, Output output = Output::nowhere);
    ~LinuxActions();

    /// Makes the virtual device or reads the layout now, so that the first stroke does not wait for it.
    void prepareToPost();

    /// Valid as long as this lives. Shell commands are permitted by `settings`.
    ActionPorts ports(const UserDefaults& settings, ActionCuePresenting& cue);
    InProcessNotifications& notifications();

    /// Waits until the desktop can have noticed a new virtual keyboard, or read its last keys. Returns at once where
    /// there is none.
    void letDesktopCatchUp();

    WindowOutcomes& windowOutcomes();

    /// Whether a shortcut with this key, which has this name, reaches programs as the letter that it names. It does not
    /// if no layout of the keyboard has that letter, or has another one in its place on a US keyboard. True for keys
    /// that name no letter.
    bool typesLetterOf(std::uint16_t keyCode, const std::string& name);

    /// How often the X server has been waited for so far.
    unsigned roundTrips() const;

    /// What kind of session this is, and what works in it now. May take seconds if services do not answer.
    DesktopSession session();

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace kinesta
