#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

#include "support/MainThread.h"
#include "support/TimerQueue.h"

namespace kinesta {

/// A main thread in virtual time: whole nanoseconds from 0 that advance only through the run functions. The thread that
/// calls these is the main thread. Tasks must not call them.
class VirtualMainThread final : public MainThread {
  public:
    using Time = std::chrono::nanoseconds;

    /// Time starts at `start`.
    explicit VirtualMainThread(Time start = Time::zero()) : m_now(start.count()) {}
    ~VirtualMainThread() override;

    /// The current time. Any thread.
    Time now() const { return Time(m_now.load()); }

    /// When the next delayed task is due.
    std::optional<Time> nextTimer() const { return m_timers.nextDue(); }

    /// Runs posted tasks, then every task due before `time` in order, each at its due time and followed by the tasks it
    /// posts. Then sets the time to `time` unless it is later already.
    void advanceTo(Time time);

    /// Runs posted tasks, and those that they post, at the current time.
    void runPosted();

    /// Runs posted and all delayed tasks, each at its due time. Never returns if a task always schedules another.
    void runRemaining();

    void post(Task task) override;
    [[nodiscard]] DelayedTask after(std::chrono::nanoseconds delay, Task task) override;

  protected:
    void cancel(std::uint64_t id) override;

  private:
    Task takePosted();
    void runFirstTimer();

    std::atomic<Time::rep> m_now;
    std::mutex m_lock;  // guards m_posted; never held while a task runs or is destroyed
    std::deque<Task> m_posted;
    TimerQueue m_timers;
};

}  // namespace kinesta
