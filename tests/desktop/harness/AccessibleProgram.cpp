#include "desktop/harness/AccessibleProgram.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string_view>

namespace kinesta::testing {
namespace {

constexpr const char* kFolder = "/org/a11y/atspi/accessible";

std::string accessibilityBusAddress() {
    sd_bus* session = nullptr;
    sd_bus_message* reply = nullptr;
    const char* address = nullptr;
    std::string result;
    if (sd_bus_open_user(&session) >= 0 &&
        sd_bus_call_method(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &reply,
                           nullptr) >= 0 &&
        sd_bus_message_read(reply, "s", &address) > 0)
        result = address;
    sd_bus_message_unref(reply);
    sd_bus_flush_close_unref(session);
    return result;
}

}  // namespace

AccessibleProgram::AccessibleProgram(std::map<std::string, Element> elements)
    : m_elements(std::move(elements)), m_stop(eventfd(0, EFD_CLOEXEC)) {
    const std::string address = accessibilityBusAddress();
    const bool isReady = !address.empty() && sd_bus_new(&m_bus) >= 0 &&
                         sd_bus_set_address(m_bus, address.c_str()) >= 0 && sd_bus_set_bus_client(m_bus, 1) >= 0 &&
                         sd_bus_start(m_bus) >= 0 &&
                         sd_bus_add_fallback(m_bus, nullptr, kFolder, &AccessibleProgram::answer, this) >= 0;
    const char* name = nullptr;
    if (!isReady || sd_bus_get_unique_name(m_bus, &name) < 0 ||
        sd_bus_call_method(m_bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root", "org.a11y.atspi.Socket",
                           "Embed", nullptr, nullptr, "(so)", name, "/org/a11y/atspi/accessible/root") < 0)
        throw std::runtime_error("no accessibility bus");
    m_thread = std::thread([this] {
        for (;;) {
            while (sd_bus_process(m_bus, nullptr) > 0) {
            }
            std::array<pollfd, 2> watched{{{sd_bus_get_fd(m_bus), POLLIN, 0}, {m_stop, POLLIN, 0}}};
            if (poll(watched.data(), watched.size(), -1) < 0 || watched[1].revents != 0)
                return;
        }
    });
}

AccessibleProgram::~AccessibleProgram() {
    hang();
    sd_bus_flush_close_unref(m_bus);
    close(m_stop);
}

void AccessibleProgram::hang() {
    eventfd_write(m_stop, 1);
    if (m_thread.joinable())
        m_thread.join();
}

int AccessibleProgram::answer(sd_bus_message* call, void* self, sd_bus_error*) {
    const auto& elements = static_cast<AccessibleProgram*>(self)->m_elements;
    const std::string path = sd_bus_message_get_path(call);
    const auto element = elements.find(path.substr(path.rfind('/') + 1));
    const std::string_view member = sd_bus_message_get_member(call);
    sd_bus_message* reply = nullptr;
    if (element == elements.end() || sd_bus_message_new_method_return(call, &reply) < 0)
        return 0;
    if (member == "GetState") {
        const auto state = element->second.state;
        sd_bus_message_append(reply, "au", 2, static_cast<std::uint32_t>(state),
                              static_cast<std::uint32_t>(state >> 32));
    } else {
        const char* name = nullptr;
        sd_bus_get_unique_name(sd_bus_message_get_bus(call), &name);
        sd_bus_message_open_container(reply, 'a', "(so)");
        const std::string folder = path.substr(0, path.rfind('/') + 1);
        for (const std::string& child : element->second.children) {
            std::string place = folder;
            place += child;
            sd_bus_message_append(reply, "(so)", name, place.c_str());
        }
        sd_bus_message_close_container(reply);
    }
    sd_bus_send(nullptr, reply, nullptr);
    sd_bus_message_unref(reply);
    return 1;
}

}  // namespace kinesta::testing
