#pragma once

#include <systemd/sd-bus.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace kinesta::testing {

/// A program on a bus that answers calls in a thread of its own.
class BusPeer {
  public:
    BusPeer(const BusPeer&) = delete;
    BusPeer& operator=(const BusPeer&) = delete;

    /// Stays on the bus, but no longer answers.
    void hang();

  protected:
    BusPeer();
    ~BusPeer();

    /// Starts to answer on m_bus.
    void serve();

    sd_bus* m_bus = nullptr;

  private:
    int m_stop;
    std::thread m_thread;
};

/// The services of a desktop on the session bus: notifications, and the portal that opens things.
class BusServices : public BusPeer {
  public:
    /// Whether they answer, refuse all, or take requests and never answer.
    enum class Manner { answering, refusing, hanging };

    explicit BusServices(Manner manner = Manner::answering);
    ~BusServices() { hang(); }

    /// The requests so far: "notify REPLACES -> ID: SUMMARY | BODY", "url ADDRESS", "file PATH".
    std::vector<std::string> requests();
    /// Waits for that many requests. Returns whether they came.
    bool waitForRequests(std::size_t count);

  private:
    static int answer(sd_bus_message* call, void* self, sd_bus_error* error);

    Manner m_manner;
    std::uint32_t m_lastIdentifier = 0;
    std::mutex m_mutex;
    std::vector<std::string> m_requests;
};

/// A program with a tree of elements on the accessibility bus, which it starts as toolkits do.
class AccessibleProgram : public BusPeer {
  public:
    struct Element {
        std::uint64_t state = 0;
        std::vector<std::string> children;
    };

    /// Elements by the last part of their path; the program itself is "root".
    explicit AccessibleProgram(std::map<std::string, Element> elements);
    ~AccessibleProgram() { hang(); }

  private:
    static int answer(sd_bus_message* call, void* self, sd_bus_error* error);

    std::map<std::string, Element> m_elements;
};

}  // namespace kinesta::testing
