#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace kinesta {

/// Delayed work in the order in which it is due, work due at the same time in the order in which it was scheduled.
/// Knows no clock and no lock: its owner brings both. What leaves the queue is handed to the owner, who runs or
/// destroys it outside his lock, since a task may own handles of other tasks.
class TimerQueue {
  public:
    using Task = std::function<void()>;
    using Time = std::chrono::nanoseconds;

    TimerQueue() = default;
    TimerQueue(const TimerQueue&) = delete;
    TimerQueue& operator=(const TimerQueue&) = delete;
    ~TimerQueue();

    /// Keeps `task` until `delay` (not negative) after `now`, or until the end of time where that comes first. The
    /// id is never given twice.
    std::uint64_t schedule(Time now, Time delay, Task task);

    /// Removes the task with this id and gives it back; an empty one if it is not in the queue.
    Task cancel(std::uint64_t id);

    /// When the first task is due, or nothing if the queue is empty.
    std::optional<Time> nextDue() const;

    /// Removes the first task and gives it back. Only when there is one.
    Task takeFirst();

  private:
    using Key = std::pair<Time, std::uint64_t>;

    std::uint64_t m_lastId = 0;
    std::map<Key, Task> m_tasks;
};

}  // namespace kinesta
