#include "support/RunLoop.h"

#include <cassert>
#include <utility>

namespace kinesta {
namespace {

using SteadyTime = std::chrono::time_point<std::chrono::steady_clock, std::chrono::nanoseconds>;

std::chrono::nanoseconds now() { return std::chrono::steady_clock::now().time_since_epoch(); }

}  // namespace

void RunLoop::run() {
    while (const Task task = waitForTask())
        task();
}

void RunLoop::quit() {
    const std::lock_guard lock(m_lock);
    m_isQuitting = true;
    // Under the lock, here and below: else the loop could be gone before it is told.
    m_wake.notify_one();
}

void RunLoop::post(Task task) {
    assert(task);
    const std::lock_guard lock(m_lock);
    m_tasks.schedule(now(), std::chrono::nanoseconds::zero(), std::move(task));
    m_wake.notify_one();
}

DelayedTask RunLoop::after(std::chrono::nanoseconds delay, Task task) {
    assert(task);
    const std::lock_guard lock(m_lock);
    // Nothing to wake: only the main thread comes here, and it looks for the next due time before it sleeps.
    return {this, m_tasks.schedule(now(), delay, std::move(task))};
}

void RunLoop::cancel(std::uint64_t id) {
    Task cancelled;  // outlives the lock
    const std::lock_guard lock(m_lock);
    cancelled = m_tasks.cancel(id);
}

/// The next task, once it is due; an empty one on quit().
MainThread::Task RunLoop::waitForTask() {
    std::unique_lock lock(m_lock);
    while (!std::exchange(m_isQuitting, false)) {
        const auto due = m_tasks.nextDue();
        if (due && *due <= now())
            return m_tasks.takeFirst();
        if (due)
            m_wake.wait_until(lock, SteadyTime(*due));
        else
            m_wake.wait(lock);
    }
    return {};
}

}  // namespace kinesta
