#include "platform/linux/SessionBus.h"

namespace kinesta {
namespace {

using Clock = std::chrono::steady_clock;

std::uint64_t microsecondsUntil(Clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<std::uint64_t>(left) : 0;
}

}  // namespace

sd_bus* SessionBus::open() {
    if (m_bus && handleAnswers())
        return m_bus.get();
    m_bus.reset();
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0)
        return nullptr;
    m_bus.reset(bus);
    ++m_generation;
    if (!flush())
        m_bus.reset();
    return m_bus.get();
}

bool SessionBus::flush() {
    const auto deadline = Clock::now() + kPatience;
    for (;;) {
        if (!m_bus || !handleAnswers())
            return false;
        std::uint64_t queued = 0;
        sd_bus_get_n_queued_write(m_bus.get(), &queued);
        if (queued == 0 && sd_bus_is_ready(m_bus.get()) > 0)
            return true;
        const std::uint64_t left = microsecondsUntil(deadline);
        if (left == 0 || sd_bus_wait(m_bus.get(), left) < 0)
            return false;
    }
}

bool SessionBus::offers(const std::string& service) {
    return isListed("ListNames", service) || isListed("ListActivatableNames", service);
}

bool SessionBus::isListed(const char* list, const std::string& service) {
    sd_bus* bus = open();
    if (bus == nullptr)
        return false;
    sd_bus_message* made = nullptr;
    sd_bus_message_new_method_call(bus, &made, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                   list);
    const BusMessagePointer question(made);
    made = nullptr;
    constexpr auto kMicroseconds = static_cast<std::uint64_t>(std::chrono::microseconds(kPatience).count());
    if (!question || sd_bus_call(bus, question.get(), kMicroseconds, nullptr, &made) < 0)
        return false;
    const BusMessagePointer answer(made);
    const char* name = nullptr;
    if (sd_bus_message_enter_container(answer.get(), 'a', "s") < 0)
        return false;
    while (sd_bus_message_read(answer.get(), "s", &name) > 0)
        if (service == name)
            return true;
    return false;
}

bool SessionBus::handleAnswers() {
    int handled = 0;
    while ((handled = sd_bus_process(m_bus.get(), nullptr)) > 0) {
    }
    return handled == 0 && sd_bus_is_open(m_bus.get()) > 0;
}

}  // namespace kinesta
