#include "platform/linux/touchpad/EvdevDeviceWatch.h"

#include <libudev.h>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <sys/timerfd.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace kinesta {
namespace {

constexpr long kSettlingNanoseconds = 100'000'000;

}  // namespace

EvdevDeviceWatch::EvdevDeviceWatch(std::string devicesDirectory)
    : m_devicesDirectory(std::move(devicesDirectory)),
      m_all(epoll_create1(EPOLL_CLOEXEC)),
      m_directories(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
      m_settling(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      m_udev(udev_new(), udev_unref),
      m_monitor(m_udev ? udev_monitor_new_from_netlink(m_udev.get(), "udev") : nullptr, udev_monitor_unref) {
    // The kernel makes "input" with the first device and removes it with the last.
    inotify_add_watch(m_directories.number(), m_devicesDirectory.c_str(), IN_CREATE | IN_MOVED_TO | IN_ONLYDIR);
    watchInputDirectory();
    add(m_directories.number());
    add(m_settling.number());
    if (m_monitor && udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "input", nullptr) >= 0 &&
        udev_monitor_enable_receiving(m_monitor.get()) >= 0)
        add(udev_monitor_get_fd(m_monitor.get()));
    else
        m_monitor.reset();
}

EvdevDeviceWatch::~EvdevDeviceWatch() = default;

bool EvdevDeviceWatch::takeChanges() {
    // Drain both: what is left would be reported again at once.
    const bool isDirectoryChanged = drainDirectories();
    if (drainUdev() || isDirectoryChanged) {
        itimerspec current{};
        timerfd_gettime(m_settling.number(), &current);
        if (current.it_value.tv_sec == 0 && current.it_value.tv_nsec == 0) {
            const itimerspec settling{.it_interval = {}, .it_value = {.tv_sec = 0, .tv_nsec = kSettlingNanoseconds}};
            timerfd_settime(m_settling.number(), 0, &settling, nullptr);
        }
    }
    std::uint64_t expirations = 0;
    return ::read(m_settling.number(), &expirations, sizeof expirations) > 0;
}

bool EvdevDeviceWatch::drainDirectories() {
    bool isChanged = false;
    alignas(inotify_event) std::array<char, 4096> buffer;
    for (;;) {
        const ssize_t size = ::read(m_directories.number(), buffer.data(), buffer.size());
        if (size <= 0)
            return isChanged;
        for (const char* at = buffer.data(); at < buffer.data() + size;) {
            inotify_event event{};
            std::memcpy(&event, at, sizeof event);
            const std::string_view name = event.len > 0 ? at + sizeof event : "";
            at += sizeof event + event.len;
            const bool isFolderEnd = event.wd == m_inputWatch && (event.mask & IN_IGNORED) != 0;
            const bool isFolderStart = event.wd != m_inputWatch && name == "input";
            // A new folder may exist before the removal of the old one is read.
            if (isFolderStart || isFolderEnd)
                watchInputDirectory();
            isChanged = isChanged || isFolderStart || isFolderEnd || (event.mask & IN_Q_OVERFLOW) != 0 ||
                        (event.wd == m_inputWatch && name.starts_with("event"));
        }
    }
}

bool EvdevDeviceWatch::drainUdev() {
    bool isChanged = false;
    while (m_monitor) {
        udev_device* device = udev_monitor_receive_device(m_monitor.get());
        if (!device)
            break;
        udev_device_unref(device);
        isChanged = true;
    }
    return isChanged;
}

void EvdevDeviceWatch::watchInputDirectory() {
    m_inputWatch = inotify_add_watch(m_directories.number(), (m_devicesDirectory + "/input").c_str(),
                                     IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ATTRIB | IN_ONLYDIR);
}

void EvdevDeviceWatch::add(int descriptor) const {
    epoll_event event{};
    event.events = EPOLLIN;
    epoll_ctl(m_all.number(), EPOLL_CTL_ADD, descriptor, &event);
}

}  // namespace kinesta
