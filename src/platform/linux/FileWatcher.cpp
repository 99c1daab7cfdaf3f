#include "platform/linux/FileWatcher.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <system_error>

namespace kinesta {
namespace {

/// Reads what is there; whether any of it is about `name`.
bool concerns(int notifications, const std::string& name) {
    alignas(inotify_event) std::array<char, 4096> buffer;
    const ssize_t length = ::read(notifications, buffer.data(), buffer.size());
    bool found = false;
    for (ssize_t at = 0; at < length;) {
        const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
        // After an overflow no one knows what was missed.
        found = found || (event->mask & IN_Q_OVERFLOW) != 0 || (event->len > 0 && name == event->name);
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    return found;
}

}  // namespace

FileWatcher::FileWatcher(MainThread& mainThread, const std::string& path, std::function<void()> onChange) {
    std::error_code ignored;
    std::filesystem::path real = std::filesystem::weakly_canonical(path, ignored);
    if (ignored)
        real = path;
    std::filesystem::create_directories(real.parent_path(), ignored);
    m_notifications = FileDescriptor(::inotify_init1(IN_CLOEXEC));
    m_stop = FileDescriptor(::eventfd(0, EFD_CLOEXEC));
    m_isWatching = m_notifications && m_stop &&
                   ::inotify_add_watch(m_notifications.number(), real.parent_path().c_str(),
                                       IN_CLOSE_WRITE | IN_MOVED_TO | IN_DELETE) >= 0;
    if (!m_isWatching)
        return;
    m_thread = std::thread([this, &mainThread, name = real.filename().string(), onChange = std::move(onChange)] {
        std::array<pollfd, 2> sources{pollfd{m_notifications.number(), POLLIN, 0}, pollfd{m_stop.number(), POLLIN, 0}};
        for (;;) {
            if (::poll(sources.data(), sources.size(), -1) < 0)
                continue;  // interrupted
            if (sources[1].revents != 0)
                return;
            if (concerns(m_notifications.number(), name))
                mainThread.post(onChange);
        }
    });
}

FileWatcher::~FileWatcher() {
    if (!m_thread.joinable())
        return;
    const std::uint64_t one = 1;
    while (::write(m_stop.number(), &one, sizeof one) < 0) {
    }
    m_thread.join();
}

}  // namespace kinesta
