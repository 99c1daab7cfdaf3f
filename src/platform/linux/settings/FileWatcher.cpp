#include "platform/linux/settings/FileWatcher.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/stat.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/linux/settings/DurableFile.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kChanges =
    IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE | IN_DELETE_SELF | IN_MOVE_SELF;

/// Creates a folder, and its parents, that only the owner may read.
void createFolder(const fs::path& folder) {
    std::error_code ignored;
    if (!fs::exists(folder, ignored) && !folder.parent_path().empty() && folder != folder.parent_path()) {
        createFolder(folder.parent_path());
        ::mkdir(folder.c_str(), S_IRWXU);
    }
}

}  // namespace

FileWatcher::FileWatcher(MainThread& mainThread, std::string path, std::function<void()> onChange)
    : m_path(std::move(path)),
      m_notifications(::inotify_init1(IN_CLOEXEC)),
      m_stop(::eventfd(0, EFD_CLOEXEC)),
      m_isWatching(m_notifications && m_stop && watchFolders()) {
    if (!m_isWatching)
        return;
    m_thread = std::thread([this, &mainThread, onChange = std::move(onChange)] {
        std::array<pollfd, 2> sources{pollfd{m_notifications.number(), POLLIN, 0}, pollfd{m_stop.number(), POLLIN, 0}};
        for (;;) {
            if (::poll(sources.data(), sources.size(), -1) < 0)
                continue;  // interrupted
            if (sources[1].revents != 0)
                return;
            if (readChanges())
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

/// Watches the folders where the file is now. Adding a watch twice has no effect.
bool FileWatcher::watchFolders() {
    const auto target = DurableFile::at(m_path);
    const fs::path real = target ? target->path() : m_path;
    const auto before = m_watches;
    m_watches.clear();
    m_names.clear();
    for (const fs::path& file : {fs::path(m_path), real}) {
        createFolder(file.parent_path());
        m_names.insert(file.filename().string());
        if (const int watch = ::inotify_add_watch(m_notifications.number(), file.parent_path().c_str(), kChanges);
            watch >= 0)
            m_watches.insert(watch);
    }
    for (const int watch : before)
        if (!m_watches.contains(watch))
            ::inotify_rm_watch(m_notifications.number(), watch);
    return !m_watches.empty();
}

/// Reads all notifications. Returns whether one may concern the file.
bool FileWatcher::readChanges() {
    constexpr std::uint32_t kUnclear = IN_Q_OVERFLOW | IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED;
    alignas(inotify_event) std::array<char, 4096> buffer;
    const ssize_t length = ::read(m_notifications.number(), buffer.data(), buffer.size());
    bool isConcerned = false;
    for (ssize_t at = 0; at < length;) {
        const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
        const bool isOurs = m_watches.contains(event->wd) || event->wd < 0;  // not from a removed watch
        if (isOurs && ((event->mask & kUnclear) != 0 || (event->len > 0 && m_names.contains(event->name))))
            isConcerned = true;
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
    if (isConcerned)
        watchFolders();
    return isConcerned;
}

}  // namespace kinesta
