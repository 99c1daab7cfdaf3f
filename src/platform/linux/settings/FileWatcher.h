#pragma once

#include <functional>
#include <set>
#include <string>
#include <thread>

#include "platform/posix/FileDescriptor.h"
#include "support/MainThread.h"

namespace kinesta {

/// Calls back on the main thread when a file was replaced, written or removed. Does not poll. Watches folders, because
/// saving replaces the file: the folder of the path, and the folder of its target if it is a symbolic link. Creates
/// missing folders, and follows folders and links that are replaced.
class FileWatcher {
  public:
    FileWatcher(MainThread& mainThread, std::string path, std::function<void()> onChange);
    ~FileWatcher();
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;

    /// False if the system cannot watch the folders.
    bool isWatching() const { return m_isWatching; }

  private:
    bool watchFolders();
    bool readChanges();

    std::string m_path;
    FileDescriptor m_notifications;
    FileDescriptor m_stop;
    // Used by the thread only, once it runs.
    std::set<int> m_watches;
    std::set<std::string> m_names;

    bool m_isWatching;
    std::thread m_thread;
};

}  // namespace kinesta
