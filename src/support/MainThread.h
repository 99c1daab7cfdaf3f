#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "support/Registration.h"
#include "support/Seconds.h"

namespace kinesta {

class MainThread;

/// Cancels delayed work that has not run yet. Harmless once the work has run or while it runs.
using DelayedTask = Registration<MainThread>;

/// The port to the thread on which everything but frame recognition runs.
class MainThread {
  public:
    using Task = std::function<void()>;

    virtual ~MainThread() = default;

    /// Runs `task` on the main thread as soon as possible, after every task posted before. Any thread.
    virtual void post(Task task) = 0;

    /// Runs `task` on the main thread after `delay` (not negative), unless the handle is cancelled before. Tasks due at
    /// the same time run in the order in which they were scheduled. Main thread only.
    [[nodiscard]] virtual DelayedTask after(std::chrono::nanoseconds delay, Task task) = 0;

  protected:
    friend DelayedTask;
    virtual void cancel(std::uint64_t id) = 0;
};

/// `delay` in whole nanoseconds, rounded down. Aborts if it is negative, not finite or too large.
std::chrono::nanoseconds wholeNanoseconds(Seconds delay);

}  // namespace kinesta
