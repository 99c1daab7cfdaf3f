#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "input/PadEvent.h"
#include "support/Clock.h"
#include "support/MainThread.h"

namespace kinesta {

/// Takes the events of a driver's thread to a watcher on the main thread while there is one: all of them, in their
/// order, those that have gathered at once. Without a watcher an event costs one look at a flag.
class PadEventRelay {
  public:
    using Watcher = std::function<void(const PadEvent&)>;

    /// Both must outlive this, and no thread may offer anything to this when it is destroyed.
    PadEventRelay(MainThread& mainThread, const Clock& clock) : m_mainThread(mainThread), m_clock(clock) {}

    /// Replaces the watcher; an empty one ends the watching. Main thread, also from within the watcher.
    void setWatcher(Watcher watcher);

    /// Any one thread. Frames get the present time as that of their arrival.
    void offer(const PadEvent& event) {
        if (m_isWatched.load(std::memory_order_relaxed))
            add(event);
    }

  private:
    void add(PadEvent event);
    void handOver();

    MainThread& m_mainThread;
    const Clock& m_clock;
    std::shared_ptr<const Watcher> m_watcher;
    std::atomic<bool> m_isWatched = false;
    std::mutex m_lock;  // guards the next two
    std::vector<PadEvent> m_waiting;
    bool m_isHandOverPosted = false;
    /// What was handed over last; its memory is used again.
    std::vector<PadEvent> m_taken;
    /// Tasks on the main thread hold it weakly.
    std::shared_ptr<PadEventRelay*> m_self = std::make_shared<PadEventRelay*>(this);
};

}  // namespace kinesta
