#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "support/MainLoop.h"
#include "support/TimerQueue.h"

namespace kinesta {

/// The main thread of a program without a window. Sleeps until a task is posted or the next delayed task is due. Runs
/// tasks in order of time (when posted or when due), so that neither kind starves the other.
class RunLoop final : public MainLoop {
  public:
    RunLoop() = default;
    ~RunLoop() override = default;

    void run() override;
    void quit() override;
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
