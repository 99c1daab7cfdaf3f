#include "desktop/harness/BusServices.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <stdexcept>

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {

struct BusHandlers {
    static int handle(sd_bus_message* message, void* data, sd_bus_error* error) {
        if (static_cast<BusServices*>(data)->m_manner == BusServices::Manner::refusing)
            return sd_bus_reply_method_errno(message, ENOTSUP, nullptr);
        if (sd_bus_message_is_method_call(message, "org.freedesktop.Notifications", "Notify") > 0)
            return notify(message, data, error);
        if (sd_bus_message_is_method_call(message, "org.freedesktop.portal.OpenURI", "OpenURI") > 0)
            return openURI(message, data, error);
        if (sd_bus_message_is_method_call(message, "org.freedesktop.portal.OpenURI", "OpenFile") > 0)
            return openFile(message, data, error);
        if (static_cast<BusServices*>(data)->m_manner == BusServices::Manner::hanging)
            return 1;
        if (sd_bus_message_is_method_call(message, "org.freedesktop.Notifications", "GetServerInformation") > 0)
            return sd_bus_reply_method_return(message, "ssss", "Test", "Kinesta", "1", "1.2");
        if (sd_bus_message_is_method_call(message, "org.freedesktop.DBus.Properties", "GetAll") > 0)
            return sd_bus_reply_method_return(message, "a{sv}", 0);
        return 0;
    }

    static int notify(sd_bus_message* message, void* data, sd_bus_error*) {
        auto& services = *static_cast<BusServices*>(data);
        const char* application = nullptr;
        const char* icon = nullptr;
        const char* summary = nullptr;
        const char* body = nullptr;
        std::uint32_t replaces = 0;
        sd_bus_message_read(message, "susss", &application, &replaces, &icon, &summary, &body);
        const std::uint32_t identifier = replaces != 0 ? replaces : ++services.m_lastIdentifier;
        services.record("notify " + std::to_string(replaces) + " -> " + std::to_string(identifier) + ": " + summary +
                        " | " + body);
        if (services.m_manner == BusServices::Manner::hanging)
            return 1;
        return sd_bus_reply_method_return(message, "u", identifier);
    }

    static int openURI(sd_bus_message* message, void* data, sd_bus_error*) {
        const char* parent = nullptr;
        const char* uri = nullptr;
        sd_bus_message_read(message, "ss", &parent, &uri);
        static_cast<BusServices*>(data)->record(std::string("url ") + uri);
        return sd_bus_reply_method_return(message, "o", "/request");
    }

    static int openFile(sd_bus_message* message, void* data, sd_bus_error*) {
        const char* parent = nullptr;
        int descriptor = -1;
        sd_bus_message_read(message, "sh", &parent, &descriptor);
        const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor));
        static_cast<BusServices*>(data)->record("file " + path.string());
        return sd_bus_reply_method_return(message, "o", "/request");
    }
};

BusServices::BusServices(Manner manner) : m_manner(manner), m_stop(eventfd(0, EFD_CLOEXEC)) {
    const bool isReady =
        sd_bus_open_user(&m_bus) >= 0 &&
        sd_bus_add_object(m_bus, nullptr, "/org/freedesktop/Notifications", &BusHandlers::handle, this) >= 0 &&
        sd_bus_add_object(m_bus, nullptr, "/org/freedesktop/portal/desktop", &BusHandlers::handle, this) >= 0 &&
        sd_bus_request_name(m_bus, "org.freedesktop.Notifications", 0) >= 0 &&
        sd_bus_request_name(m_bus, "org.freedesktop.portal.Desktop", 0) >= 0;
    if (!isReady)
        throw std::runtime_error("no services on the session bus");
    m_thread = std::thread([this] { serve(); });
}

BusServices::~BusServices() {
    eventfd_write(m_stop, 1);
    if (m_thread.joinable())
        m_thread.join();
    sd_bus_flush_close_unref(m_bus);
    close(m_stop);
}

void BusServices::serve() {
    for (;;) {
        while (sd_bus_process(m_bus, nullptr) > 0) {
        }
        std::array<pollfd, 2> watched{{{sd_bus_get_fd(m_bus), POLLIN, 0}, {m_stop, POLLIN, 0}}};
        if (poll(watched.data(), watched.size(), -1) < 0 || watched[1].revents != 0)
            return;
    }
}

void BusServices::record(std::string request) {
    const std::lock_guard lock(m_mutex);
    m_requests.push_back(std::move(request));
}

std::vector<std::string> BusServices::requests() {
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

bool BusServices::waitForRequests(std::size_t count) {
    return eventually([&] { return requests().size() >= count; });
}

}  // namespace kinesta::testing
