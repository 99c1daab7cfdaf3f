#pragma once

#include <cstdint>
#include <functional>

#include "support/Registration.h"
#include "support/Seconds.h"

namespace kinesta {

/// A mouse button or the pad's pressure, as the desktop reports it.
struct PointerEvent {
    enum class Kind { leftDown, leftUp, rightDown, rightUp, pressure };

    Kind kind = Kind::leftDown;
    /// Pressure stage, for `pressure`.
    std::int64_t stage = 0;
    /// When it happened.
    Uptime timestamp = 0;

    friend bool operator==(const PointerEvent&, const PointerEvent&) = default;
};

/// Whose events a monitor sees. Every event belongs to one of the two.
enum class PointerEventScope { otherApplications, thisApplication };

class PointerEventMonitoring;

/// Keeps a monitor installed as long as it lives.
using PointerEventMonitor = Registration<PointerEventMonitoring>;

/// The port to the pointer events of the desktop. Main thread only.
class PointerEventMonitoring {
  public:
    using Handler = std::function<void(const PointerEvent&)>;

    virtual ~PointerEventMonitoring() = default;

    /// Calls `handler` on the main thread for every event of the scope, which goes its way all the same. A handler
    /// may remove its own monitor.
    [[nodiscard]] virtual PointerEventMonitor monitor(PointerEventScope scope, Handler handler) = 0;

  protected:
    friend PointerEventMonitor;
    virtual void cancel(std::uint64_t id) = 0;
};

}  // namespace kinesta
