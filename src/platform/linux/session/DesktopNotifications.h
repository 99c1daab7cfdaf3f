#pragma once

#include <string>

#include "platform/linux/session/MessageBus.h"

namespace kinesta {

/// Notifications on the desktop, at most one of ours on the screen. Main thread only.
class DesktopNotifications {
  public:
    /// `bus` must outlive this.
    explicit DesktopNotifications(MessageBus& bus) : m_bus(bus) {}
    DesktopNotifications(const DesktopNotifications&) = delete;
    DesktopNotifications& operator=(const DesktopNotifications&) = delete;

    /// Shows a notification in place of the one before, without waiting for the desktop. Sends nothing while the
    /// desktop has not answered for the one before: only that answer says which notification to replace.
    void show(const std::string& summary, const std::string& body);

  private:
    static int handleAnswer(sd_bus_message* answer, void* self, sd_bus_error*);

    MessageBus& m_bus;
    std::uint64_t m_generation = 0;
    std::uint32_t m_shown = 0;
    BusSlotPointer m_unanswered;
};

}  // namespace kinesta
