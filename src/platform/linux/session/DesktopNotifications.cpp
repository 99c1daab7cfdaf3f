#include "platform/linux/session/DesktopNotifications.h"

#include <limits>

namespace kinesta {
namespace {

constexpr std::uint64_t kNoTimeout = std::numeric_limits<std::uint64_t>::max();
constexpr std::int32_t kUntilDismissed = 0;

}  // namespace

void DesktopNotifications::show(const std::string& summary, const std::string& body) {
    sd_bus* bus = m_bus.open();
    if (bus == nullptr)
        return;
    if (m_generation != m_bus.generation()) {  // identifiers from the old connection are not valid
        m_generation = m_bus.generation();
        m_shown = 0;
        m_unanswered.reset();
    }
    if (m_unanswered)
        return;

    sd_bus_message* made = nullptr;
    sd_bus_message_new_method_call(bus, &made, "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                   "org.freedesktop.Notifications", "Notify");
    const BusMessagePointer message(made);
    // Desktops differ in whether the body is markup. All of them show text that is not valid markup as it is.
    if (!message || sd_bus_message_append(message.get(), "susssasa{sv}i", "Kinesta", m_shown, "kinesta",
                                          summary.c_str(), body.c_str(), 0, 0, kUntilDismissed) < 0)
        return;
    // No timeout: a desktop that hangs shows the notification once it recovers, and the bus answers for one that has
    // ended. Sending again after a timeout would show two.
    sd_bus_slot* slot = nullptr;
    if (sd_bus_call_async(bus, &slot, message.get(), &handleAnswer, this, kNoTimeout) < 0)
        return;
    m_unanswered.reset(slot);
    m_bus.flush();
}

int DesktopNotifications::handleAnswer(sd_bus_message* answer, void* self, sd_bus_error*) {
    auto& notifications = *static_cast<DesktopNotifications*>(self);
    notifications.m_unanswered.reset();
    if (sd_bus_message_is_method_error(answer, nullptr) != 0 ||
        sd_bus_message_read(answer, "u", &notifications.m_shown) < 0)
        notifications.m_shown = 0;
    return 0;
}

}  // namespace kinesta
