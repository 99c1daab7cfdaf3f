#pragma once

#include <functional>
#include <set>
#include <string>
#include <thread>

#include "platform/linux/process/FileDescriptor.h"
#include "support/MainThread.h"

namespace kinesta {

/// Tells when a file was replaced, written or removed by anyone, on the main thread, without polling. Watches folders,
/// since a file that is saved as a whole is another one each time: the one that the path names, and the one that it
/// leads to through symbolic links. They are created if need be, and watched anew when they or the links are replaced.
class FileWatcher {
  public:
    FileWatcher(MainThread& mainThread, std::string path, std::function<void()> onChange);
    ~FileWatcher();
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;

    /// False where the system does not let the folders be watched.
    bool isWatching() const { return m_isWatching; }

  private:
    bool watchFolders();
    bool readChanges();

    std::string m_path;
    FileDescriptor m_notifications;
    FileDescriptor m_stop;
    // Of the thread, once it runs.
    std::set<int> m_watches;
    std::set<std::string> m_names;

    bool m_isWatching;
    std::thread m_thread;
};

}  // namespace kinesta
