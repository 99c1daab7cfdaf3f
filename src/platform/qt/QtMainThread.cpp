#include "platform/qt/QtMainThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <cassert>
#include <utility>

namespace kinesta {
namespace {

constexpr auto kPosted = QEvent::User;
constexpr auto kQuit = static_cast<QEvent::Type>(QEvent::User + 1);

std::chrono::nanoseconds now() { return std::chrono::steady_clock::now().time_since_epoch(); }

}  // namespace

QtMainThread::QtMainThread() {
    m_timer.setSingleShot(true);
    // Qt's other timers may be 5 % late.
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { runDue(); });
}

QtMainThread::~QtMainThread() = default;

void QtMainThread::run() { QCoreApplication::exec(); }

void QtMainThread::quit() {
    // An event waits for the next run(); a call of QCoreApplication::exit() before it would be lost.
    QCoreApplication::postEvent(this, new QEvent(kQuit));
}

void QtMainThread::post(Task task) {
    assert(task);
    const std::lock_guard lock(m_lock);
    m_posted.push_back(std::move(task));
    // One event serves all tasks that wait. Under the lock: otherwise this could be destroyed before the call.
    if (m_posted.size() == 1)
        QCoreApplication::postEvent(this, new QEvent(kPosted));
}

DelayedTask QtMainThread::after(std::chrono::nanoseconds delay, Task task) {
    assert(task);
    const std::uint64_t id = m_delayed.schedule(now(), delay, std::move(task));
    startTimer();
    return {this, id};
}

void QtMainThread::cancel(std::uint64_t id) {
    const Task cancelled = m_delayed.cancel(id);
    startTimer();
}

bool QtMainThread::event(QEvent* event) {
    if (event->type() == kPosted)
        runPosted();
    else if (event->type() == kQuit)
        QCoreApplication::exit();
    else
        return QObject::event(event);
    return true;
}

void QtMainThread::runPosted() {
    std::vector<Task> tasks;
    {
        const std::lock_guard lock(m_lock);
        tasks.swap(m_posted);
    }
    for (Task& task : tasks)
        std::exchange(task, {})();
}

void QtMainThread::runDue() {
    // Up to now only: a task that schedules itself again at once must not keep Qt's events waiting.
    const auto limit = now();
    for (auto due = m_delayed.nextDue(); due && *due <= limit; due = m_delayed.nextDue())
        m_delayed.takeFirst()();
    startTimer();
}

void QtMainThread::startTimer() {
    const auto due = m_delayed.nextDue();
    if (!due)
        return m_timer.stop();
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(*due - now());
    m_timer.start(
        std::clamp(wait, std::chrono::milliseconds::zero(), std::chrono::milliseconds(std::chrono::hours(24))));
}

}  // namespace kinesta
