#include "desktop/harness/BusPeer.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {
namespace {

constexpr const char* kElements = "/org/a11y/atspi/accessible";

void require(int result, const char* what) {
    if (result < 0)
        throw std::runtime_error(what);
}

}  // namespace

BusPeer::BusPeer() : m_stop(eventfd(0, EFD_CLOEXEC)) {}

BusPeer::~BusPeer() {
    sd_bus_flush_close_unref(m_bus);
    close(m_stop);
}

void BusPeer::hang() {
    eventfd_write(m_stop, 1);
    if (m_thread.joinable())
        m_thread.join();
}

void BusPeer::serve() {
    m_thread = std::thread([this] {
        std::array<pollfd, 2> watched{{{sd_bus_get_fd(m_bus), POLLIN, 0}, {m_stop, POLLIN, 0}}};
        do {
            while (sd_bus_process(m_bus, nullptr) > 0) {
            }
        } while (poll(watched.data(), watched.size(), -1) >= 0 && watched[1].revents == 0);
    });
}

BusServices::BusServices(Manner manner) : m_manner(manner) {
    constexpr const char* kFailure = "no services on the session bus";
    require(sd_bus_open_user(&m_bus), kFailure);
    for (const char* path : {"/org/freedesktop/Notifications", "/org/freedesktop/portal/desktop"})
        require(sd_bus_add_object(m_bus, nullptr, path, &BusServices::answer, this), kFailure);
    for (const char* name : {"org.freedesktop.Notifications", "org.freedesktop.portal.Desktop"})
        require(sd_bus_request_name(m_bus, name, 0), kFailure);
    serve();
}

int BusServices::answer(sd_bus_message* call, void* self, sd_bus_error*) {
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

std::vector<std::string> BusServices::requests() {
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

bool BusServices::waitForRequests(std::size_t count) {
    return eventually([&] { return requests().size() >= count; });
}

AccessibleProgram::AccessibleProgram(std::map<std::string, Element> elements) : m_elements(std::move(elements)) {
    constexpr const char* kFailure = "no accessibility bus";
    sd_bus* session = nullptr;
    sd_bus_message* reply = nullptr;
    const char* address = nullptr;
    require(sd_bus_open_user(&session), kFailure);
    require(sd_bus_call_method(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &reply,
                               nullptr),
            kFailure);
    require(sd_bus_message_read(reply, "s", &address), kFailure);
    require(sd_bus_new(&m_bus), kFailure);
    require(sd_bus_set_address(m_bus, address), kFailure);
    require(sd_bus_set_bus_client(m_bus, 1), kFailure);
    require(sd_bus_start(m_bus), kFailure);
    sd_bus_message_unref(reply);
    sd_bus_flush_close_unref(session);
    const char* name = nullptr;
    const std::string root = std::string(kElements) + "/root";
    require(sd_bus_add_fallback(m_bus, nullptr, kElements, &AccessibleProgram::answer, this), kFailure);
    require(sd_bus_get_unique_name(m_bus, &name), kFailure);
    require(sd_bus_call_method(m_bus, "org.a11y.atspi.Registry", root.c_str(), "org.a11y.atspi.Socket", "Embed",
                               nullptr, nullptr, "(so)", name, root.c_str()),
            kFailure);
    serve();
}

int AccessibleProgram::answer(sd_bus_message* call, void* self, sd_bus_error*) {
    const auto& elements = static_cast<AccessibleProgram*>(self)->m_elements;
    const std::string path = sd_bus_message_get_path(call);
    const auto element = elements.find(path.substr(path.rfind('/') + 1));
    sd_bus_message* reply = nullptr;
    if (element == elements.end() || sd_bus_message_new_method_return(call, &reply) < 0)
        return 0;
    if (std::string_view(sd_bus_message_get_member(call)) == "GetState") {
        const auto state = element->second.state;
        sd_bus_message_append(reply, "au", 2, static_cast<std::uint32_t>(state),
                              static_cast<std::uint32_t>(state >> 32));
    } else {
        const char* name = nullptr;
        sd_bus_get_unique_name(sd_bus_message_get_bus(call), &name);
        sd_bus_message_open_container(reply, 'a', "(so)");
        for (const std::string& child : element->second.children)
            sd_bus_message_append(reply, "(so)", name, (std::string(kElements) + "/" + child).c_str());
        sd_bus_message_close_container(reply);
    }
    sd_bus_send(nullptr, reply, nullptr);
    sd_bus_message_unref(reply);
    return 1;
}

}  // namespace kinesta::testing
