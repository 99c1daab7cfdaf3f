#pragma once

#include <atomic>

#include "input/TrackpadContactProviding.h"

namespace kinesta {

/// Contact frames from a recording or a test. Thread-safe.
class ReplayContactProvider final : public TrackpadContactProviding {
  public:
    FrameHandler frameHandler() const override { return m_handler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_handler.setHandler(std::move(handler)); }

    TrackpadContactProviderStatus status() const override {
        return m_isListening ? TrackpadContactProviderStatus::listening() : TrackpadContactProviderStatus::stopped();
    }
    void start() override { m_isListening = true; }
    void stop() override { m_isListening = false; }

    /// Calls the frame handler on the calling thread; drops the frame while stopped.
    void deliver(const TrackpadContactFrame& frame) {
        if (m_isListening)
            m_handler.call(frame);
    }

  private:
    FrameHandlerSlot m_handler;
    std::atomic<bool> m_isListening = false;
};

}  // namespace kinesta
