#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "input/TrackpadContactFrame.h"

namespace kinesta {

/// Whether a source of contact frames works, and if not, why.
struct TrackpadContactProviderStatus {
    enum class Kind { unavailable, stopped, listening };

    Kind kind = Kind::stopped;
    /// Why the provider is unavailable, as a sentence for the person; empty otherwise.
    std::string message;

    static TrackpadContactProviderStatus unavailable(std::string message) {
        return {Kind::unavailable, std::move(message)};
    }
    static TrackpadContactProviderStatus stopped() { return {Kind::stopped, {}}; }
    static TrackpadContactProviderStatus listening() { return {Kind::listening, {}}; }

    friend bool operator==(const TrackpadContactProviderStatus&, const TrackpadContactProviderStatus&) = default;
};

/// The port to a source of contact frames.
class TrackpadContactProviding {
  public:
    using FrameHandler = std::function<void(const TrackpadContactFrame&)>;

    virtual ~TrackpadContactProviding() = default;

    /// Receives the frames on any thread, so it must not touch main-thread state. Set before
    /// start(). Any thread.
    virtual FrameHandler frameHandler() const = 0;
    virtual void setFrameHandler(FrameHandler handler) = 0;

    virtual TrackpadContactProviderStatus status() const = 0;

    /// Begins to deliver frames. Afterwards status() is listening, or unavailable with the reason.
    virtual void start() = 0;

    /// Stops delivering. Afterwards status() is stopped. Harmless when not started.
    virtual void stop() = 0;
};

/// A provider's frame handler, replaced on one thread and called on another. The lock is held only to read or replace
/// it, never during the call, so a handler may replace itself.
class FrameHandlerSlot {
  public:
    using Handler = TrackpadContactProviding::FrameHandler;

    Handler handler() const {
        const auto current = load();
        return current ? *current : Handler();
    }
    void setHandler(Handler handler) {
        auto next = handler ? std::make_shared<const Handler>(std::move(handler)) : nullptr;
        const std::lock_guard lock(m_lock);
        m_handler.swap(next);  // `next` outlives the lock: the old handler is destroyed without it
    }
    void call(const TrackpadContactFrame& frame) const {
        if (const auto current = load())
            (*current)(frame);
    }

  private:
    std::shared_ptr<const Handler> load() const {
        const std::lock_guard lock(m_lock);
        return m_handler;
    }

    mutable std::mutex m_lock;
    std::shared_ptr<const Handler> m_handler;
};

}  // namespace kinesta
