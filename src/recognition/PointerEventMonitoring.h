#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "support/Seconds.h"

namespace kinesta {

/// An event of a mouse button or of the pad's pressure.
struct PointerEvent {
    enum class Kind { leftDown, leftUp, rightDown, rightUp, pressure };

    Kind kind = Kind::leftDown;
    /// Pressure stage, for `pressure`.
    std::int64_t stage = 0;
    /// When it happened.
    Uptime timestamp = 0;

    friend bool operator==(const PointerEvent&, const PointerEvent&) = default;
};

/// The events that a monitor sees. Every event belongs to one of the two.
enum class PointerEventScope { otherApplications, thisApplication };

class PointerEventMonitoring;

/// Keeps a monitor installed while it lives. Main thread only; must not outlive its port.
class PointerEventMonitor {
  public:
    PointerEventMonitor() = default;
    PointerEventMonitor(PointerEventMonitoring* port, std::uint64_t id) : m_port(port), m_id(id) {}
    PointerEventMonitor(PointerEventMonitor&& other) noexcept
        : m_port(std::exchange(other.m_port, nullptr)), m_id(other.m_id) {}
    PointerEventMonitor& operator=(PointerEventMonitor&& other) noexcept {
        if (this != &other) {
            remove();
            m_port = std::exchange(other.m_port, nullptr);
            m_id = other.m_id;
        }
        return *this;
    }
    ~PointerEventMonitor() { remove(); }

    void remove();

  private:
    PointerEventMonitoring* m_port = nullptr;
    std::uint64_t m_id = 0;
};

/// The port to the pointer events of the desktop. Main thread only.
class PointerEventMonitoring {
  public:
    using Handler = std::function<void(const PointerEvent&)>;

    virtual ~PointerEventMonitoring() = default;

    /// Calls `handler` on the main thread for every event of the scope, and swallows none. A handler may remove its own
    /// monitor.
    [[nodiscard]] virtual PointerEventMonitor monitor(PointerEventScope scope, Handler handler) = 0;

  protected:
    friend class PointerEventMonitor;
    virtual void remove(std::uint64_t id) = 0;
};

inline void PointerEventMonitor::remove() {
    if (PointerEventMonitoring* port = std::exchange(m_port, nullptr))
        port->remove(m_id);
}

}  // namespace kinesta
