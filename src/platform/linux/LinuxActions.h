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
    /// Is told, as one sentence, why something could not be done. Also from other threads.
    using Log = std::function<void(const std::string&)>;

    using Output = PosixProcessLauncher::Output;

    /// Asks nothing of the desktop yet: an action waits only for what it needs. `output` is that of the programs that
    /// are started. Clock and defaults must outlive this.
    LinuxActions(const Clock& clock, const UserDefaults& defaults, const Log& log, Output output = Output::nowhere);
    ~LinuxActions();

    /// Makes the virtual device or reads the layout now, so that the first stroke does not wait for it.
    void prepareToPost();

    /// Valid as long as this lives.
    ActionPorts ports();
    InProcessNotifications& notifications();

    /// Waits until the desktop can have noticed a virtual device through which keys go out, or taken what went out:
    /// for a process that posts at once, or ends right after. Returns at once where there is no such device.
    void letDesktopCatchUp();

    /// What came of an action on windows.
    WindowOutcomes& windowOutcomes();

    /// Whether a shortcut with this key, which has this name, reaches programs as the letter that it names: not if no
    /// layout of the keyboard has that letter, or another one where it is on a US keyboard. True of keys that name no
    /// letter.
    bool typesLetterOf(std::uint16_t keyCode, const std::string& name);

    /// What kind of session this is, and what works in it now. May take seconds where services do not answer.
    DesktopSession session();

  private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace kinesta
