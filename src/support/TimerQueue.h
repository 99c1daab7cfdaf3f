#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace kinesta {

/// Delayed tasks by due time, then by the order in which they were scheduled. The owner provides the clock and the
/// lock, and runs or destroys removed tasks outside that lock: a task may own handles of other tasks.
class TimerQueue {
  public:
    using Task = std::function<void()>;
    using Time = std::chrono::nanoseconds;

    TimerQueue() = default;
    TimerQueue(const TimerQueue&) = delete;
    TimerQueue& operator=(const TimerQueue&) = delete;
    ~TimerQueue();

    /// Keeps `task` until `delay` (not negative) after `now`; a sum that would overflow counts as the latest time.
    /// Returns a unique id.
    std::uint64_t schedule(Time now, Time delay, Task task);

    /// Removes and returns the task with this id. Empty if it is not in the queue.
    Task cancel(std::uint64_t id);

    /// When the first task is due. Empty if the queue is.
    std::optional<Time> nextDue() const;

    /// Removes and returns the first task. Requires a task in the queue.
    Task takeFirst();

  private:
    using Key = std::pair<Time, std::uint64_t>;

    std::uint64_t m_lastId = 0;
    std::map<Key, Task> m_tasks;
};

}  // namespace kinesta
