#pragma once

#include <atomic>

#include "input/TrackpadContactProviding.h"

namespace kinesta {

/// A source of contact frames that come from a recording or a test. Every verb may be called on any thread.
class ReplayContactProvider final : public TrackpadContactProviding {
  public:
    FrameHandler frameHandler() const override { return m_handler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_handler.setHandler(std::move(handler)); }

    TrackpadContactProviderStatus status() const override {
        return m_isListening ? TrackpadContactProviderStatus::listening() : TrackpadContactProviderStatus::stopped();
    }
    void start() override { m_isListening = true; }
    void stop() override { m_isListening = false; }

    /// Hands a frame to the frame handler on the calling thread; while stopped, drops it as a stopped device would.
    void deliver(const TrackpadContactFrame& frame) {
        if (m_isListening)
            m_handler.call(frame);
    }

  private:
    FrameHandlerSlot m_handler;
    std::atomic<bool> m_isListening = false;
};

}  // namespace kinesta
