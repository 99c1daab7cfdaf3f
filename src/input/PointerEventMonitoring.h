#pragma once

#include <cstdint>
#include <functional>

#include "support/Registration.h"
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
using PointerEventMonitor = Registration<PointerEventMonitoring>;

/// The port to the pointer events of the desktop. Main thread only.
class PointerEventMonitoring {
  public:
    using Handler = std::function<void(const PointerEvent&)>;

    virtual ~PointerEventMonitoring() = default;

    /// Calls `handler` on the main thread for every event of the scope, and swallows none. A handler may remove its own
    /// monitor.
    [[nodiscard]] virtual PointerEventMonitor monitor(PointerEventScope scope, Handler handler) = 0;

  protected:
    friend PointerEventMonitor;
    virtual void cancel(std::uint64_t id) = 0;
};

}  // namespace kinesta
