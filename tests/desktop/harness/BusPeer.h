#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "desktop/harness/ChildProcess.h"
#include "platform/linux/session/MessageBus.h"

namespace kinesta::testing {

/// A program on a bus that answers calls in a thread of its own.
class BusPeer {
  public:
    /// Stays on the bus, but no longer answers.
    void hang() {
        m_hangs = true;
        if (m_thread.joinable())
            m_thread.join();
    }

  protected:
    explicit BusPeer(const std::string& address = {}) : m_connection(address), m_bus(m_connection.open()) {}
    BusPeer(const BusPeer&) = delete;
    BusPeer& operator=(const BusPeer&) = delete;
    ~BusPeer() { hang(); }

    /// Starts to pass calls to `answer`, with `self`.
    void serve(sd_bus_message_handler_t answer, void* self) {
        EXPECT_GE(sd_bus_add_fallback(m_bus, nullptr, "/", answer, self), 0);
        m_thread = std::thread([this] {
            while (!m_hangs)
                if (sd_bus_process(m_bus, nullptr) == 0)
                    sd_bus_wait(m_bus, 2000);
        });
    }

    MessageBus m_connection;
    sd_bus* m_bus;

  private:
    std::atomic<bool> m_hangs = false;
    std::thread m_thread;
};

/// The services of a desktop on the session bus: notifications, and the portal that opens things.
class BusServices : public BusPeer {
  public:
    /// Whether they answer, refuse all, or take requests and never answer.
    enum class Manner { answering, refusing, hanging };

    explicit BusServices(Manner manner = Manner::answering) : m_manner(manner) {
        for (const char* name : {"org.freedesktop.Notifications", "org.freedesktop.portal.Desktop"})
            EXPECT_GE(sd_bus_request_name(m_bus, name, 0), 0);
        serve(&BusServices::answer, this);
    }
    ~BusServices() { hang(); }

    /// Waits for that many requests. Returns all so far: "notify REPLACES -> ID: SUMMARY | BODY", "url ADDRESS",
    /// "file PATH".
    std::vector<std::string> requests(std::size_t count) {
        std::vector<std::string> copy;
        EXPECT_TRUE(eventually([&] {
            const std::lock_guard lock(m_mutex);
            copy = m_requests;
            return copy.size() >= count;
        }));
        return copy;
    }

  private:
    static int answer(sd_bus_message* call, void* self, sd_bus_error*) {
        auto& services = *static_cast<BusServices*>(self);
        if (services.m_manner == Manner::refusing)
            return sd_bus_reply_method_errno(call, ENOTSUP, nullptr);
        const std::string_view member = sd_bus_message_get_member(call);
        const char *first = nullptr, *icon = nullptr, *text = nullptr, *body = nullptr;
        std::uint32_t number = 0;
        std::string request;
        if (member == "Notify") {
            sd_bus_message_read(call, "susss", &first, &number, &icon, &text, &body);
            request = "notify " + std::to_string(number);
            number = number != 0 ? number : ++services.m_lastIdentifier;
            request += " -> " + std::to_string(number) + ": " + text + " | " + body;
        } else if (member == "OpenURI") {
            sd_bus_message_read(call, "ss", &first, &text);
            request = std::string("url ") + text;
        } else if (member == "OpenFile") {
            int descriptor = -1;
            sd_bus_message_read(call, "sh", &first, &descriptor);
            request = "file " + std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor)).string();
        }
        if (!request.empty()) {
            const std::lock_guard lock(services.m_mutex);
            services.m_requests.push_back(request);
        }
        if (services.m_manner == Manner::hanging)
            return 1;
        if (member == "Notify")
            return sd_bus_reply_method_return(call, "u", number);
        if (member == "GetServerInformation")
            return sd_bus_reply_method_return(call, "ssss", "Test", "Kinesta", "1", "1.2");
        if (member == "GetAll")
            return sd_bus_reply_method_return(call, "a{sv}", 0);
        return request.empty() ? 0 : sd_bus_reply_method_return(call, "o", "/request");
    }

    Manner m_manner;
    std::uint32_t m_lastIdentifier = 0;
    std::mutex m_mutex;
    std::vector<std::string> m_requests;
};

/// A program with a tree of elements on the accessibility bus, which it starts as toolkits do.
class PretendedProgram : public BusPeer {
  public:
    struct Element {
        std::uint64_t state = 0;
        std::vector<std::string> children;
    };

    /// Elements by the last part of their path; the program itself is "root".
    explicit PretendedProgram(std::map<std::string, Element> elements)
        : BusPeer(addressOfBus()), m_elements(std::move(elements)) {
        EXPECT_GE(sd_bus_call_method(m_bus, "org.a11y.atspi.Registry", pathOf("root").c_str(), "org.a11y.atspi.Socket",
                                     "Embed", nullptr, nullptr, "(so)", name(), pathOf("root").c_str()),
                  0);
        serve(&PretendedProgram::answer, this);
    }
    ~PretendedProgram() { hang(); }

  private:
    static std::string addressOfBus() {
        const char* address = "";
        MessageBus session;
        const auto reply = session.ask({"org.a11y.Bus", "/org/a11y/bus"}, "org.a11y.Bus", "GetAddress", 20, nullptr,
                                       MessageBus::Starting::ifNeeded);
        EXPECT_TRUE(reply && sd_bus_message_read(reply.get(), "s", &address) > 0);
        return address;
    }
    static std::string pathOf(const std::string& element) { return "/org/a11y/atspi/accessible/" + element; }
    const char* name() {
        const char* unique = nullptr;
        sd_bus_get_unique_name(m_bus, &unique);
        return unique;
    }

    static int answer(sd_bus_message* call, void* self, sd_bus_error*) {
        auto& program = *static_cast<PretendedProgram*>(self);
        const std::string path = sd_bus_message_get_path(call);
        const auto element = program.m_elements.find(path.substr(path.rfind('/') + 1));
        if (element == program.m_elements.end())
            return 0;
        const auto& [state, children] = element->second;
        if (std::string_view(sd_bus_message_get_member(call)) == "GetState")
            return sd_bus_reply_method_return(call, "au", 2, static_cast<std::uint32_t>(state),
                                              static_cast<std::uint32_t>(state >> 32));
        sd_bus_message* reply = nullptr;
        sd_bus_message_new_method_return(call, &reply);
        const BusMessagePointer owned(reply);
        sd_bus_message_open_container(reply, 'a', "(so)");
        for (const std::string& child : children)
            sd_bus_message_append(reply, "(so)", program.name(), pathOf(child).c_str());
        sd_bus_message_close_container(reply);
        return sd_bus_send(nullptr, reply, nullptr);
    }

    std::map<std::string, Element> m_elements;
};

}  // namespace kinesta::testing
