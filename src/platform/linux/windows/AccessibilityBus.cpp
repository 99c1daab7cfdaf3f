#include "platform/linux/windows/AccessibilityBus.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <string>

namespace kinesta {
namespace {

using Steady = std::chrono::steady_clock;
using FloatingSeconds = std::chrono::duration<Seconds>;

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";

// Bits of an element's state, as libatspi numbers them (AtspiStateType).
constexpr std::uint64_t kActive = 1U << 1U;
constexpr std::uint64_t kModal = 1U << 16U;
constexpr std::uint64_t kShowing = 1U << 25U;

}  // namespace

/// One search through a program's elements, until a deadline.
class AccessibilityBus::Walk {
  public:
    Walk(MessageBus& bus, Steady::time_point deadline) : m_bus(bus), m_deadline(deadline) {}

    bool findsDialog(ProcessIdentifier process) {
        for (const BusObject& program : children({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"}))
            if (processOf(program) == process)
                for (const BusObject& window : children(program))
                    if ((stateOf(window) & kActive) != 0 && hasDialogBelow(window))
                        return true;
        return false;
    }

  private:
    Seconds timeLeft() const { return FloatingSeconds(m_deadline - Steady::now()).count(); }

    /// Searches level by level, because a dialog lies near the top of the tree.
    bool hasDialogBelow(const BusObject& window) {
        std::deque<std::pair<BusObject, int>> waiting{{window, 0}};
        for (int looked = 0; !waiting.empty() && timeLeft() > 0; waiting.pop_front()) {
            const auto& [element, level] = waiting.front();
            if (level == kMostLevels)
                continue;
            for (BusObject& child : children(element)) {
                if (++looked > kMostElements)
                    return false;
                const std::uint64_t state = stateOf(child);
                if ((state & kShowing) == 0)
                    continue;
                if ((state & kModal) != 0)
                    return true;
                waiting.emplace_back(std::move(child), level + 1);
            }
        }
        return false;
    }

    std::vector<BusObject> children(const BusObject& parent) {
        std::vector<BusObject> objects;
        const auto answer = m_bus.ask(parent, kAccessible, "GetChildren", timeLeft());
        if (!answer || sd_bus_message_enter_container(answer.get(), 'a', "(so)") <= 0)
            return objects;
        const char* service = nullptr;
        const char* path = nullptr;
        while (objects.size() < kMostElements && sd_bus_message_read(answer.get(), "(so)", &service, &path) > 0)
            objects.push_back({service, path});
        return objects;
    }

    std::uint64_t stateOf(const BusObject& element) {
        const auto answer = m_bus.ask(element, kAccessible, "GetState", timeLeft());
        std::uint32_t low = 0;
        std::uint32_t high = 0;
        if (!answer || sd_bus_message_read(answer.get(), "au", 2, &low, &high) <= 0)
            return 0;
        return low | static_cast<std::uint64_t>(high) << 32U;
    }

    ProcessIdentifier processOf(const BusObject& program) {
        const BusObject bus{"org.freedesktop.DBus", "/org/freedesktop/DBus"};
        const auto answer =
            m_bus.ask(bus, "org.freedesktop.DBus", "GetConnectionUnixProcessID", timeLeft(), program.service.c_str());
        std::uint32_t process = 0;
        if (!answer || sd_bus_message_read(answer.get(), "u", &process) <= 0)
            return -1;
        return static_cast<ProcessIdentifier>(process);
    }

    MessageBus& m_bus;
    Steady::time_point m_deadline;
};

bool AccessibilityBus::hasDialogInside(ProcessIdentifier process, Seconds timeout) {
    const auto deadline = Steady::now() + std::chrono::duration_cast<Steady::duration>(FloatingSeconds(timeout));
    return process > 0 && open(timeout) && Walk(*m_bus, deadline).findsDialog(process);
}

bool AccessibilityBus::open(Seconds timeout) {
    if (m_bus && m_generation == m_session.generation() && m_bus->open() != nullptr)
        return true;
    m_bus.reset();
    const auto answer = m_session.ask({"org.a11y.Bus", "/org/a11y/bus"}, "org.a11y.Bus", "GetAddress", timeout);
    const char* address = nullptr;
    if (!answer || sd_bus_message_read(answer.get(), "s", &address) <= 0)
        return false;
    m_generation = m_session.generation();
    m_bus = std::make_unique<MessageBus>(address);
    return m_bus->open() != nullptr;
}

}  // namespace kinesta
