#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <utility>

#include "support/Seconds.h"

namespace kinesta {

class MainThread;

/// The handle of one piece of delayed work. Destroying or replacing the handle cancels work that has not run.
/// Main thread only; must not outlive the MainThread that gave it.
class DelayedTask {
  public:
    DelayedTask() = default;
    DelayedTask(MainThread* thread, std::uint64_t id) : m_thread(thread), m_id(id) {}
    DelayedTask(DelayedTask&& other) noexcept : m_thread(std::exchange(other.m_thread, nullptr)), m_id(other.m_id) {}
    DelayedTask& operator=(DelayedTask&& other) noexcept {
        if (this != &other) {
            cancel();
            m_thread = std::exchange(other.m_thread, nullptr);
            m_id = other.m_id;
        }
        return *this;
    }
    ~DelayedTask() { cancel(); }

    /// Makes sure the work does not run from now on. Harmless when it has run, runs now, or was cancelled.
    void cancel();

  private:
    MainThread* m_thread = nullptr;
    std::uint64_t m_id = 0;
};

/// The port to the one thread on which everything but frame recognition happens.
class MainThread {
  public:
    using Task = std::function<void()>;

    virtual ~MainThread() = default;

    /// Runs `task` on the main thread as soon as it is free, after all that was posted before. Any thread.
    virtual void post(Task task) = 0;

    /// Runs `task` on the main thread once `delay` (not negative) has passed, unless the handle is cancelled
    /// first. Work due at the same time runs in the order in which it was scheduled. Main thread only.
    [[nodiscard]] virtual DelayedTask after(std::chrono::nanoseconds delay, Task task) = 0;

  protected:
    friend class DelayedTask;
    virtual void cancel(std::uint64_t id) = 0;
};

inline void DelayedTask::cancel() {
    if (MainThread* thread = std::exchange(m_thread, nullptr))
        thread->cancel(m_id);
}

/// `delay` as whole nanoseconds, the fraction dropped. A delay that is negative, not finite or too long to be
/// counted is a bug of the caller.
std::chrono::nanoseconds wholeNanoseconds(Seconds delay);

}  // namespace kinesta
