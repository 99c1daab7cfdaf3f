#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace kinesta {

/// Counts requests that other threads hand over to the system, so that a process that ends right after its requests can
/// wait for them.
class HandOvers {
  public:
    /// A request is under way until the last copy has gone. Any thread may drop it.
    using Request = std::shared_ptr<const void>;

    Request begin() {
        const std::lock_guard guard(m_state->lock);
        ++m_state->underWay;
        return {nullptr, [state = m_state](const void*) {
                    const std::lock_guard guard(state->lock);
                    --state->underWay;
                    state->changed.notify_all();
                }};
    }

    /// Waits until no request is under way. False if that takes longer.
    bool wait(std::chrono::milliseconds longest) const {
        std::unique_lock guard(m_state->lock);
        return m_state->changed.wait_for(guard, longest, [this] { return m_state->underWay == 0; });
    }

  private:
    struct State {
        std::mutex lock;  // guards the count
        std::condition_variable changed;
        int underWay = 0;
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

}  // namespace kinesta
