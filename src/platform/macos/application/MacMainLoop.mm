#include "platform/macos/application/MacMainLoop.h"

#include <AppKit/AppKit.h>
#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>

#include <cassert>
#include <mutex>
#include <utility>

#include "support/TimerQueue.h"

namespace kinesta {
namespace {

std::chrono::nanoseconds now() { return std::chrono::steady_clock::now().time_since_epoch(); }

/// Ends [NSApp run], which looks whether it was stopped after each event only.
void stopApplication() {
    [NSApp stop:nil];
    NSEvent* const event = [NSEvent otherEventWithType:NSEventTypeApplicationDefined
                                              location:NSPoint {}
                                         modifierFlags:0
                                             timestamp:0
                                          windowNumber:0
                                               context:nil
                                               subtype:0
                                                 data1:0
                                                 data2:0];
    if (event)
        [NSApp postEvent:event atStart:YES];
}

}  // namespace

/// Other threads may still hold it for a moment when the loop has gone.
struct MacMainLoop::State : std::enable_shared_from_this<State> {
    State();
    void end();

    void runOnce();
    void runDue();
    /// Makes runDue() run when the next task is due.
    void schedule();
    /// Makes runDue() run soon. Any thread.
    void wake();

    /// Removes the first task if it is due at `time` and the loop has not been asked to quit.
    Task takeDue(std::chrono::nanoseconds time) {
        const std::lock_guard guard(lock);
        const auto due = tasks.nextDue();
        return isQuitting || !due || *due > time ? Task() : tasks.takeFirst();
    }

    std::mutex lock;  // guards the next three; never held while a task runs or is destroyed
    TimerQueue tasks;
    bool isAwake = false;
    bool isQuitting = false;

    dispatch_source_t timer;
    bool runsApplication = false;
};

MacMainLoop::State::State()
    : timer(dispatch_source_create(DISPATCH_SOURCE_TYPE_TIMER, 0, 0, dispatch_get_main_queue())) {}

void MacMainLoop::State::end() {
    dispatch_source_cancel(timer);  // and ARC releases it; one that was never activated would crash there (from memory)
    for (;;) {
        Task dropped;  // outlives the lock: it may own handles of other tasks
        const std::lock_guard guard(lock);
        if (!tasks.nextDue())
            return;
        dropped = tasks.takeFirst();
    }
}

void MacMainLoop::State::runOnce() {
    schedule();
    // A plain run loop does not take events from the window server; the application object does (from memory).
    runsApplication = NSApp != nil;
    if (runsApplication)
        [NSApp run];
    else
        CFRunLoopRun();  // never ends by itself: the main queue keeps it
}

void MacMainLoop::State::runDue() {
    {
        const std::lock_guard guard(lock);
        isAwake = false;
    }
    // Up to now only: a task that posts itself again must not keep the platform's events waiting.
    const auto limit = now();
    while (Task task = takeDue(limit)) {
        @autoreleasepool {  // a plain run loop has none
            task();
            task = {};
        }
    }
    schedule();
    const bool isStopping = [this] {
        const std::lock_guard guard(lock);
        return isQuitting;
    }();
    if (!isStopping && runsApplication == (NSApp != nil))
        return;
    if (runsApplication)
        stopApplication();
    else
        CFRunLoopStop(CFRunLoopGetMain());
}

void MacMainLoop::State::schedule() {
    const auto due = [this] {
        const std::lock_guard guard(lock);
        return tasks.nextDue();
    }();
    const auto wait = due ? *due - now() : std::chrono::nanoseconds::max();
    if (wait <= std::chrono::nanoseconds::zero())
        return wake();
    // The clock of the timer rests while the machine sleeps, so that a task may be late after waking, never early.
    dispatch_source_set_timer(timer, due ? dispatch_time(DISPATCH_TIME_NOW, wait.count()) : DISPATCH_TIME_FOREVER,
                              DISPATCH_TIME_FOREVER, 0);
}

void MacMainLoop::State::wake() {
    {
        const std::lock_guard guard(lock);
        if (std::exchange(isAwake, true))
            return;
    }
    const std::weak_ptr<State> weakSelf = weak_from_this();
    dispatch_async(dispatch_get_main_queue(), ^{
      if (const auto self = weakSelf.lock())
          self->runDue();
    });
}

MacMainLoop::MacMainLoop() : m_state(std::make_shared<State>()) {
    const std::weak_ptr<State> weakState = m_state;
    dispatch_source_set_event_handler(m_state->timer, ^{
      if (const auto state = weakState.lock())
          state->runDue();
    });
    dispatch_source_set_timer(m_state->timer, DISPATCH_TIME_FOREVER, DISPATCH_TIME_FOREVER, 0);
    dispatch_activate(m_state->timer);
}

MacMainLoop::~MacMainLoop() { m_state->end(); }

void MacMainLoop::run() {
    const auto takeQuit = [this] {
        const std::lock_guard guard(m_state->lock);
        return std::exchange(m_state->isQuitting, false);
    };
    while (!takeQuit())
        m_state->runOnce();
}

void MacMainLoop::quit() {
    const auto state = m_state;  // run() may return, and this end, before the last line
    {
        const std::lock_guard guard(state->lock);
        state->isQuitting = true;
    }
    state->wake();
}

void MacMainLoop::post(Task task) {
    assert(task);
    const auto state = m_state;
    {
        const std::lock_guard guard(state->lock);
        state->tasks.schedule(now(), std::chrono::nanoseconds::zero(), std::move(task));
    }
    state->wake();
}

DelayedTask MacMainLoop::after(std::chrono::nanoseconds delay, Task task) {
    assert(task);
    const std::uint64_t id = [&] {
        const std::lock_guard guard(m_state->lock);
        return m_state->tasks.schedule(now(), delay, std::move(task));
    }();
    m_state->schedule();
    return {this, id};
}

void MacMainLoop::cancel(std::uint64_t id) {
    {
        Task cancelled;  // outlives the lock
        const std::lock_guard guard(m_state->lock);
        cancelled = m_state->tasks.cancel(id);
    }
    m_state->schedule();
}

}  // namespace kinesta
