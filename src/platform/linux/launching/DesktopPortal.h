#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <string>
#include <utility>

#include "platform/linux/session/MessageBus.h"

namespace kinesta {

/// The desktop's service that opens addresses and files. Main thread only. Functions return whether the request was
/// sent; whether it was refused is logged later.
class DesktopPortal {
  public:
    using Log = std::function<void(const std::string& message)>;

    /// `bus` must outlive this.
    DesktopPortal(MessageBus& bus, Log log) : m_bus(bus), m_log(std::move(log)) {}
    DesktopPortal(const DesktopPortal&) = delete;
    DesktopPortal& operator=(const DesktopPortal&) = delete;
    /// Waits for the answers: the bus drops requests to a portal that is still starting once their sender has left.
    ~DesktopPortal();

    bool openURL(const std::string& url);
    bool openFile(const std::string& path);

  private:
    struct Request {
        DesktopPortal& portal;
        std::string what;
        BusSlotPointer slot;
    };

    /// The bus, if it offers the portal.
    sd_bus* open();
    Request& prepare(const std::string& what);
    bool send(Request& request, int queued, sd_bus_slot* slot);
    static int handleAnswer(sd_bus_message* answer, void* request, sd_bus_error* error);
    void forget(const Request& request);

    MessageBus& m_bus;
    Log m_log;
    std::uint64_t m_generation = 0;
    std::list<Request> m_unanswered;
};

}  // namespace kinesta
