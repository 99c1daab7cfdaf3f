#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "support/MainThread.h"
#include "support/TimerQueue.h"

namespace kinesta {

/// The main thread of a program without a window. Sleeps until a task is posted or the next delayed task is due. Runs
/// tasks in order of time (when posted or when due), so that neither kind starves the other.
class RunLoop final : public MainThread {
  public:
    RunLoop() = default;
    ~RunLoop() override = default;

    /// Makes the calling thread the main thread until quit(). Must not be called from a task.
    void run();

    /// Makes run() return after the current task, or the next run() return at once. Remaining tasks stay for another
    /// run(). Any thread, but not a signal handler: let a thread wait for the signal and call this.
    void quit();

    void post(Task task) override;
    [[nodiscard]] DelayedTask after(std::chrono::nanoseconds delay, Task task) override;

  protected:
    void cancel(std::uint64_t id) override;

  private:
    Task waitForTask();

    std::mutex m_lock;  // guards everything below; never held while a task runs or is destroyed
    std::condition_variable m_wake;
    TimerQueue m_tasks;
    bool m_isQuitting = false;
};

}  // namespace kinesta
