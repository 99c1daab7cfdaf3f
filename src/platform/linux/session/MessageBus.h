#pragma once

#include <systemd/sd-bus.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "support/Seconds.h"

namespace kinesta {

struct BusUnref {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};
using BusMessagePointer = std::unique_ptr<sd_bus_message, BusUnref>;
using BusSlotPointer = std::unique_ptr<sd_bus_slot, BusUnref>;

/// An object of a program on a bus.
struct BusObject {
    std::string service;
    std::string path;
};

/// Our connection to a message bus: the session's, or the one at an address. Main thread only.
///
/// Only ask() waits for other programs. Other messages go out at once, and answers to them are read at the next use.
class MessageBus {
  public:
    /// How long to wait for the bus itself, which only passes messages on.
    static constexpr std::chrono::milliseconds kPatience{200};

    MessageBus() = default;
    explicit MessageBus(std::string address) : m_address(std::move(address)) {}
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

    /// The connection, after handling all answers that have arrived. Connects (again) if there is no connection; null
    /// without a bus.
    sd_bus* open();

    /// Sends all queued messages. Returns whether all of them went out.
    bool flush();

    /// Whether a program offers this service, or would be started for it. Waits for the bus's answer.
    bool offers(const std::string& service);

    /// Whether to start a program that does not run yet.
    enum class Starting { never, ifNeeded };

    /// Calls a method of another program without arguments, or with one text, and waits for the answer. Null for an
    /// error, or if no answer comes within `timeout` seconds.
    BusMessagePointer ask(const BusObject& object, const char* interface, const char* method, Seconds timeout,
                          const char* argument = nullptr, Starting starting = Starting::never);

    /// The number of connections made so far. What other programs gave us is valid only while this stays the same.
    std::uint64_t generation() const { return m_generation; }

  private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };

    bool handleAnswers();
    bool isListed(const char* list, const std::string& service);

    int connect(sd_bus** bus) const;

    std::string m_address;
    std::unique_ptr<sd_bus, Close> m_bus;
    std::uint64_t m_generation = 0;
};

}  // namespace kinesta
