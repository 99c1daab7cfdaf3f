#pragma once

#include <memory>
#include <vector>

#include "actions/Workspace.h"
#include "platform/linux/session/MessageBus.h"

namespace kinesta {

/// Finds dialogs that programs draw inside a window, which no window manager knows of, through the accessibility bus
/// (AT-SPI). Main thread only.
class AccessibilityBus {
  public:
    /// How much of one window is searched: elements, and levels below the window.
    static constexpr int kMostElements = 200;
    static constexpr int kMostLevels = 8;
    /// How long pressing a close button waits, in seconds, for a program that does not answer.
    static constexpr Seconds kTimeout = 0.15;

    /// `session` gives the address of the accessibility bus and must outlive this.
    explicit AccessibilityBus(MessageBus& session) : m_session(session) {}

    /// Whether the active window of this program has a modal dialog inside. False if no accessibility bus runs: this
    /// does not start it. Waits at most `timeout` seconds.
    bool hasDialogInside(ProcessIdentifier process, Seconds timeout = kTimeout);

  private:
    class Walk;

    bool open(Seconds timeout);

    MessageBus& m_session;
    std::uint64_t m_generation = 0;  // of the session bus, when it gave the address of m_bus
    std::unique_ptr<MessageBus> m_bus;
};

}  // namespace kinesta
