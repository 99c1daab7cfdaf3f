#pragma once

#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include "input/PadEvent.h"
#include "input/TrackpadContactProviding.h"
#include "platform/linux/touchpad/EvdevReader.h"
#include "support/MainThread.h"

namespace kinesta {

/// Contact frames and clicks of the touchpad that the kernel's input devices offer.
///
/// Delivers frames on a thread of its own. All other calls, in both directions, are on the main thread. From start() to
/// stop() the provider follows the touchpad as it is connected and disconnected, even if start() found none.
class EvdevContactProvider final : public TrackpadContactProviding {
  public:
    using Settings = EvdevReader::Settings;
    using PointerHandler = std::function<void(const PadEvent&)>;

    /// `mainThread` must outlive the provider.
    explicit EvdevContactProvider(MainThread& mainThread, Settings settings = {});
    ~EvdevContactProvider() override;

    FrameHandler frameHandler() const override { return m_frameHandler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_frameHandler.setHandler(std::move(handler)); }

    /// What receives button presses and releases (PadButton) and changes of the pressure stage
    /// (PadPressure) with their uptimes, on the main thread. The left and the right button are not distinguished.
    /// A frame that came with a press has been delivered before.
    void setPointerHandler(PointerHandler handler) { m_pointerHandler = std::move(handler); }

    /// What is called, on the main thread, when status() has changed by itself: the touchpad came, went, became
    /// readable, or was switched off or on. May start or stop the provider, but not destroy it.
    void setStatusHandler(std::function<void()> handler) { m_statusHandler = std::move(handler); }

    /// The touchpad to read, by path or name, empty for a built-in one, or any if there is none. Taken over at once,
    /// with an empty frame for fingers on the one before; the status handler is called if the provider is running.
    void setDevice(std::string device);

    TrackpadContactProviderStatus status() const override { return m_state.status; }

    /// The touchpad that is read, while status() is listening.
    const EvdevReader::State& state() const { return m_state; }

    void start() override;

    /// Returns within milliseconds, when no handler runs any more. Must not be called from the frame handler.
    void stop() override;

  private:
    struct Run;

    void waitUntilClosed();

    MainThread& m_mainThread;
    Settings m_settings;
    FrameHandlerSlot m_frameHandler;
    PointerHandler m_pointerHandler;
    std::function<void()> m_statusHandler;
    EvdevReader::State m_state;
    /// From start() to stop(). Tasks that the thread has posted to the main thread do nothing after the end of its run.
    std::shared_ptr<Run> m_run;
    /// Of the previous run, while it closes its devices.
    std::thread m_closing;
};

}  // namespace kinesta
