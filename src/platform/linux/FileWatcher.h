#pragma once

#include <functional>
#include <string>
#include <thread>

#include "platform/linux/FileDescriptor.h"
#include "support/MainThread.h"

namespace kinesta {

/// Tells when a file was replaced or written by anyone, on the main thread, without polling. Watches the file's
/// folder, since a file that is saved as a whole is another one each time; the folder is created if need be. A file
/// behind a symbolic link is watched where it really is.
class FileWatcher {
  public:
    FileWatcher(MainThread& mainThread, const std::string& path, std::function<void()> onChange);
    ~FileWatcher();
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;

    /// False where the system does not let the folder be watched.
    bool isWatching() const { return m_isWatching; }

  private:
    FileDescriptor m_notifications;
    FileDescriptor m_stop;
    bool m_isWatching = false;
    std::thread m_thread;
};

}  // namespace kinesta
