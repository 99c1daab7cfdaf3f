#include "platform/linux/touchpad/TouchpadSwitch.h"

#include <sys/epoll.h>
#include <sys/inotify.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>

#include "platform/linux/process/SessionEnvironment.h"
#include "platform/linux/process/UserDatabase.h"
#include "platform/linux/touchpad/DconfDatabase.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

TouchpadSwitch::Desktop TouchpadSwitch::Desktop::current() {
    Desktop desktop;
    // The X server inside a Wayland session has no touchpads.
    const bool isWayland = !variable("WAYLAND_DISPLAY").empty();
    if (!isWayland)
        desktop.display = variable("DISPLAY");
    if (isCurrentDesktop("GNOME"))
        desktop.dconfDirectory = configurationFolder() + "/dconf";
    desktop.isSilent = isWayland && desktop.dconfDirectory.empty();
    return desktop;
}

TouchpadSwitch::TouchpadSwitch(const Desktop& desktop)
    : m_all(epoll_create1(EPOLL_CLOEXEC)), m_dconfDirectory(desktop.dconfDirectory), m_display(desktop.display) {
    connect();
    if (!m_dconfDirectory.empty()) {
        m_directory = FileDescriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
        // The database is replaced as a whole.
        inotify_add_watch(m_directory.number(), m_dconfDirectory.c_str(), IN_MOVED_TO | IN_CLOSE_WRITE | IN_ONLYDIR);
        watch(m_directory.number());
    }
}

void TouchpadSwitch::connect() {
    if (m_display.empty())
        return;
    m_x11.emplace(m_display);
    watch(m_x11->fileDescriptor());
}

void TouchpadSwitch::watch(int descriptor) {
    epoll_event readable{};
    readable.events = EPOLLIN;
    epoll_ctl(m_all.number(), EPOLL_CTL_ADD, descriptor, &readable);
}

bool TouchpadSwitch::takeChanges() {
    const bool isStoredAnew = drainDirectory();
    return (m_x11 && m_x11->takeChanges()) || isStoredAnew;
}

bool TouchpadSwitch::drainDirectory() {
    bool isChanged = false;
    alignas(inotify_event) std::array<char, 4096> buffer;
    while (m_directory && ::read(m_directory.number(), buffer.data(), buffer.size()) > 0)
        isChanged = true;
    return isChanged;
}

SendEventsMode TouchpadSwitch::mode(const std::string& path) {
    // The server may be back by now, or belong to another user.
    if (m_x11 && m_x11->fileDescriptor() < 0)
        connect();
    const SendEventsMode driver = m_x11 ? m_x11->mode(path) : SendEventsMode::enabled;
    return driver == SendEventsMode::enabled ? storedMode() : driver;
}

std::string TouchpadSwitch::whyOff(const std::string& path, const TouchpadScanner& devices) {
    switch (mode(path)) {
        case SendEventsMode::disabled:
            return translated("The trackpad is switched off in the desktop's settings.");
        case SendEventsMode::disabledWithExternalMouse:
            return devices.hasExternalMouse() ? translated(
                                                    "The trackpad is switched off in the desktop's settings while an "
                                                    "external mouse is connected.")
                                              : "";
        case SendEventsMode::enabled:
            break;
    }
    return "";
}

SendEventsMode TouchpadSwitch::storedMode() const {
    if (m_dconfDirectory.empty())
        return SendEventsMode::enabled;
    std::ifstream file(m_dconfDirectory + "/user", std::ios::binary);
    const std::string database{std::istreambuf_iterator<char>(file), {}};
    const auto mode = dconfString(database, "/org/gnome/desktop/peripherals/touchpad/send-events");
    if (mode == "disabled")
        return SendEventsMode::disabled;
    return mode == "disabled-on-external-mouse" ? SendEventsMode::disabledWithExternalMouse : SendEventsMode::enabled;
}

}  // namespace kinesta
