#pragma once

#include <memory>
#include <vector>

#include "actions/Workspace.h"
#include "platform/linux/session/MessageBus.h"

namespace kinesta {

/// What programs tell of their windows on the accessibility bus (AT-SPI) and no window manager knows: dialogs that they
/// draw inside a window. Main thread only.
class AccessibilityBus {
  public:
    /// As much as is looked at in one window: elements that show, and levels below the window.
    static constexpr int kMostElements = 200;
    static constexpr int kMostLevels = 8;
    /// Any press of a close button waits this long, in seconds, for a program that does not answer.
    static constexpr Seconds kTimeout = 0.15;

    /// The session's bus, which knows where the accessibility bus is.
    explicit AccessibilityBus(MessageBus& session) : m_session(session) {}

    /// Whether the active window of this program has a modal dialog inside. Not where nobody tells: the bus is not
    /// started for it. At most `timeout` seconds.
    bool hasDialogInside(ProcessIdentifier process, Seconds timeout = kTimeout);

  private:
    class Walk;

    bool open(Seconds timeout);

    MessageBus& m_session;
    std::uint64_t m_generation = 0;  // of the session's bus that told of m_bus
    std::unique_ptr<MessageBus> m_bus;
};

}  // namespace kinesta
