#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "support/MainThread.h"
#include "support/TimerQueue.h"

namespace kinesta {

/// The main thread of a program without a window: sleeps until there is work or the next delayed task is due, and
/// does not wake for anything else. Work runs in the order of time: a task as of when it was posted, a delayed task as
/// of when it was due, so that neither kind can starve the other.
class RunLoop final : public MainThread {
  public:
    RunLoop() = default;
    ~RunLoop() override = default;

    /// Makes the calling thread the main thread until quit(). Not from a task.
    void run();

    /// Makes run() return once the task that runs now has ended, or the next run() return at once. Work that is left
    /// stays for another run(). Any thread, but not a signal handler: let a thread wait for the signal and call this.
    void quit();

    void post(Task task) override;
    [[nodiscard]] DelayedTask after(std::chrono::nanoseconds delay, Task task) override;

  protected:
    void cancel(std::uint64_t id) override;

  private:
    Task waitForTask();

    std::mutex m_lock;  // guards all below; never held while a task runs or is destroyed
    std::condition_variable m_wake;
    TimerQueue m_tasks;
    bool m_isQuitting = false;
};

}  // namespace kinesta
