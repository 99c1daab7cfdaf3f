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
    // Under the lock, here and below: otherwise the loop could be destroyed before the call.
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
    // No wake-up needed: only the main thread calls this, and it checks the next due time before it sleeps.
    return {this, m_tasks.schedule(now(), delay, std::move(task))};
}

void RunLoop::cancel(std::uint64_t id) {
    Task cancelled;  // outlives the lock
    const std::lock_guard lock(m_lock);
    cancelled = m_tasks.cancel(id);
}

/// Waits for the next due task. An empty one on quit().
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
