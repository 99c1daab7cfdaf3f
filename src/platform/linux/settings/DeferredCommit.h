#pragma once

#include <functional>
#include <mutex>
#include <optional>
#include <string_view>
#include <thread>

#include "platform/linux/settings/DurableFile.h"
#include "platform/posix/FileDescriptor.h"

namespace kinesta {

/// Brings staged contents of a file onto the disk on a thread of its own, which lives only that long. What is staged
/// meanwhile goes in the same run. All functions on one thread.
class DeferredCommit {
  public:
    DeferredCommit() = default;
    ~DeferredCommit() { static_cast<void>(wait()); }
    DeferredCommit(const DeferredCommit&) = delete;
    DeferredCommit& operator=(const DeferredCommit&) = delete;

    /// Whether a run is under way, which holds the lock.
    bool isBusy() const;
    /// Stages the content in the run that is under way. Nothing if there is none: then stage it under the lock and
    /// call begin().
    std::optional<Outcome> join(std::string_view content);
    /// Commits what is staged. Keeps `lock` as long as needed. Calls `onEnd` on the other thread. Must
    /// not be called while busy.
    void begin(DurableFile file, FileDescriptor lock, std::function<void()> onEnd);
    /// Waits for the end of the run. Returns the outcome of the last one.
    Outcome wait();

  private:
    void run(const std::function<void()>& onEnd);

    mutable std::mutex m_mutex;
    bool m_isRunning = false;
    bool m_hasMore = false;
    Outcome m_outcome = success();
    std::optional<DurableFile> m_file;
    FileDescriptor m_lock;
    std::thread m_thread;
};

}  // namespace kinesta
