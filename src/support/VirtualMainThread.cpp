#include "support/VirtualMainThread.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace kinesta {

VirtualMainThread::~VirtualMainThread() {
    while (takePosted()) {
    }
}

void VirtualMainThread::advanceTo(Time time) {
    runPosted();
    while (m_timers.nextDue() && *m_timers.nextDue() < time)
        runFirstTimer();
    m_now = std::max(now(), time).count();
}

void VirtualMainThread::runPosted() {
    while (const Task task = takePosted())
        task();
}

void VirtualMainThread::runRemaining() {
    runPosted();
    while (m_timers.nextDue())
        runFirstTimer();
}

void VirtualMainThread::post(Task task) {
    assert(task);
    const std::lock_guard lock(m_lock);
    m_posted.push_back(std::move(task));
}

DelayedTask VirtualMainThread::after(std::chrono::nanoseconds delay, Task task) {
    return {this, m_timers.schedule(now(), delay, std::move(task))};
}

void VirtualMainThread::cancel(std::uint64_t id) { m_timers.cancel(id); }

MainThread::Task VirtualMainThread::takePosted() {
    const std::lock_guard lock(m_lock);
    if (m_posted.empty())
        return {};
    Task task = std::move(m_posted.front());
    m_posted.pop_front();
    return task;
}

void VirtualMainThread::runFirstTimer() {
    m_now = m_timers.nextDue()->count();
    m_timers.takeFirst()();
    runPosted();
}

}  // namespace kinesta
