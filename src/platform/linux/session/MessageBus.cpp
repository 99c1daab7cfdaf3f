#include "platform/linux/session/MessageBus.h"

namespace kinesta {
namespace {

using Steady = std::chrono::steady_clock;

std::uint64_t microsecondsUntil(Steady::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Steady::now()).count();
    return left > 0 ? static_cast<std::uint64_t>(left) : 0;
}

}  // namespace

sd_bus* MessageBus::open() {
    if (m_bus && handleAnswers())
        return m_bus.get();
    m_bus.reset();
    sd_bus* bus = nullptr;
    if (connect(&bus) < 0)
        return nullptr;
    m_bus.reset(bus);
    ++m_generation;
    if (!flush())
        m_bus.reset();
    return m_bus.get();
}

int MessageBus::connect(sd_bus** bus) const {
    if (m_address.empty())
        return sd_bus_open_user(bus);
    int outcome = sd_bus_new(bus);
    if (outcome >= 0)
        outcome = sd_bus_set_address(*bus, m_address.c_str());
    if (outcome >= 0)
        outcome = sd_bus_set_bus_client(*bus, 1);
    if (outcome >= 0)
        outcome = sd_bus_start(*bus);
    if (outcome < 0)
        *bus = sd_bus_unref(*bus);
    return outcome;
}

bool MessageBus::flush() {
    const auto deadline = Steady::now() + kPatience;
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

BusMessagePointer MessageBus::ask(const BusObject& object, const char* interface, const char* method, Seconds timeout,
                                  const char* argument, Starting starting) {
    sd_bus* bus = timeout > 0 ? open() : nullptr;
    sd_bus_message* made = nullptr;
    if (bus == nullptr ||
        sd_bus_message_new_method_call(bus, &made, object.service.c_str(), object.path.c_str(), interface, method) < 0)
        return nullptr;
    const BusMessagePointer question(made);
    sd_bus_message_set_auto_start(question.get(), starting == Starting::ifNeeded ? 1 : 0);
    if (argument != nullptr && sd_bus_message_append(question.get(), "s", argument) < 0)
        return nullptr;
    made = nullptr;
    if (sd_bus_call(bus, question.get(), static_cast<std::uint64_t>(timeout * 1e6), nullptr, &made) < 0)
        return nullptr;
    return BusMessagePointer(made);
}

bool MessageBus::offers(const std::string& service) {
    return isListed("ListNames", service) || isListed("ListActivatableNames", service);
}

bool MessageBus::isListed(const char* list, const std::string& service) {
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

bool MessageBus::handleAnswers() {
    int handled = 0;
    while ((handled = sd_bus_process(m_bus.get(), nullptr)) > 0) {
    }
    return handled == 0 && sd_bus_is_open(m_bus.get()) > 0;
}

}  // namespace kinesta
