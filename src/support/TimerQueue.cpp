#include "support/TimerQueue.h"

#include <algorithm>
#include <cassert>

namespace kinesta {

// One by one: destroying a task may cancel others whose handles it owns.
TimerQueue::~TimerQueue() {
    while (!m_tasks.empty())
        takeFirst();
}

std::uint64_t TimerQueue::schedule(Time now, Time delay, Task task) {
    assert(delay >= Time::zero());
    const Time due = now <= Time::zero() || delay < Time::max() - now ? now + delay : Time::max();
    m_tasks.emplace(Key(due, ++m_lastId), std::move(task));
    return m_lastId;
}

TimerQueue::Task TimerQueue::cancel(std::uint64_t id) {
    // Few tasks are ever pending, so an index by id would cost more than this search.
    const auto found =
        std::find_if(m_tasks.begin(), m_tasks.end(), [&](const auto& e) { return e.first.second == id; });
    if (found == m_tasks.end())
        return {};
    Task task = std::move(found->second);
    m_tasks.erase(found);
    return task;
}

std::optional<TimerQueue::Time> TimerQueue::nextDue() const {
    if (m_tasks.empty())
        return std::nullopt;
    return m_tasks.begin()->first.first;
}

TimerQueue::Task TimerQueue::takeFirst() {
    assert(!m_tasks.empty());
    Task task = std::move(m_tasks.begin()->second);
    m_tasks.erase(m_tasks.begin());
    return task;
}

}  // namespace kinesta
