#pragma once

#include <string>
#include <utility>
#include <vector>

#include "input/TrackpadContactProviding.h"

namespace kinesta::testing {

/// A provider whose frames the test sends, from any thread. Logs its calls.
class FakeContactProvider final : public TrackpadContactProviding {
  public:
    std::vector<std::string> calls;
    /// The status after start().
    TrackpadContactProviderStatus statusAfterStart = TrackpadContactProviderStatus::listening();

    FrameHandler frameHandler() const override { return m_handler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_handler.setHandler(std::move(handler)); }
    TrackpadContactProviderStatus status() const override { return m_status; }
    void start() override {
        calls.push_back("start");
        m_status = statusAfterStart;
    }
    void stop() override {
        calls.push_back("stop");
        m_status = TrackpadContactProviderStatus::stopped();
    }

    /// Changes the status, as a connected or removed pad does.
    void becomes(TrackpadContactProviderStatus status) { m_status = std::move(status); }

    /// Sends a frame even if not started: a driver may be late.
    void send(const TrackpadContactFrame& frame) const { m_handler.call(frame); }

  private:
    FrameHandlerSlot m_handler;
    TrackpadContactProviderStatus m_status;
};

}  // namespace kinesta::testing
