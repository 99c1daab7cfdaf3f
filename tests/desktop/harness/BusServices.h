#pragma once

#include <systemd/sd-bus.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace kinesta::testing {

/// The services of a desktop on a test's session bus: notifications, and the portal that opens things. They run in a
/// thread of their own and write down what they are asked.
class BusServices {
  public:
    /// Whether the services answer; refuse all; or, hanging, take requests and never say anything.
    enum class Manner { answering, refusing, hanging };

    explicit BusServices(Manner manner = Manner::answering);
    BusServices(const BusServices&) = delete;
    BusServices& operator=(const BusServices&) = delete;
    ~BusServices();

    /// What was asked so far: "notify REPLACES -> ID: SUMMARY | BODY", "url ADDRESS", "file PATH".
    std::vector<std::string> requests();

    /// Waits until that many requests came; whether they did.
    bool waitForRequests(std::size_t count);

  private:
    friend struct BusHandlers;
    void serve();
    void record(std::string request);

    Manner m_manner;
    std::uint32_t m_lastIdentifier = 0;
    sd_bus* m_bus = nullptr;
    int m_stop = -1;
    std::mutex m_mutex;
    std::vector<std::string> m_requests;
    std::thread m_thread;
};

}  // namespace kinesta::testing
