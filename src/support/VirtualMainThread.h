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

/// A main thread on which no one waits: time is a number that moves only when it is told to, in whole nanoseconds
/// since 0. The thread that calls the run functions is the main thread; tasks do not call them.
class VirtualMainThread final : public MainThread {
  public:
    using Time = std::chrono::nanoseconds;

    /// Time begins at `start`.
    explicit VirtualMainThread(Time start = Time::zero()) : m_now(start.count()) {}
    ~VirtualMainThread() override;

    /// The present time. Any thread.
    Time now() const { return Time(m_now.load()); }

    /// When the next delayed task is due, if there is one.
    std::optional<Time> nextTimer() const { return m_timers.nextDue(); }

    /// Runs what is posted, then every task due strictly before `time`, each at its own due time and with what it
    /// posts right after it, in the order of the due times. Then it is `time`, unless it is later already.
    void advanceTo(Time time);

    /// Runs all that is posted, also what that posts in turn, at the present time.
    void runPosted();

    /// Runs what is posted and all delayed tasks, each at its own due time. Does not end if a task always schedules
    /// another.
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
