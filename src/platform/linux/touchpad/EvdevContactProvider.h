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
    using EventHandler = std::function<void(const PadEvent&)>;

    /// `mainThread` must outlive the provider.
    explicit EvdevContactProvider(MainThread& mainThread, Settings settings = {});
    ~EvdevContactProvider() override;

    FrameHandler frameHandler() const override { return m_frameHandler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_frameHandler.setHandler(std::move(handler)); }

    /// `handler` receives button presses and releases (PadButton) and changes of the pressure stage (PadPressure) with
    /// their uptimes, on the main thread. The left and the right button are not distinguished. A frame that came with a
    /// press has been delivered before.
    void setPointerHandler(EventHandler handler) { m_pointerHandler = std::move(handler); }

    /// `handler` receives every event on the provider's thread, after the frame handler. Set before start().
    void setEventHandler(EventHandler handler) { m_eventHandler = std::move(handler); }

    /// `handler` is called on the main thread when status() has changed by itself: the touchpad was connected or
    /// disconnected, became readable, or was switched off or on. It may start or stop the provider, but not destroy it.
    void setStatusHandler(std::function<void()> handler) { m_statusHandler = std::move(handler); }

    /// The touchpad to read, by path or name, empty for a built-in one, or any if there is none. Takes effect at once:
    /// if the provider is running, fingers on the previous touchpad lift with an empty frame and the status handler is
    /// called.
    void setDevice(std::string device);

    TrackpadContactProviderStatus status() const override { return m_state.status; }

    /// The touchpad that is read, while status() is listening.
    const EvdevReader::State& state() const { return m_state; }

    void start() override;

    /// Returns within milliseconds. No handler runs afterwards. Must not be called from the frame handler.
    void stop() override;

  private:
    struct Run;

    void waitUntilClosed();

    MainThread& m_mainThread;
    Settings m_settings;
    FrameHandlerSlot m_frameHandler;
    EventHandler m_pointerHandler;
    EventHandler m_eventHandler;
    std::function<void()> m_statusHandler;
    EvdevReader::State m_state;
    /// From start() to stop(). Tasks that the thread has posted to the main thread do nothing after the end of its run.
    std::shared_ptr<Run> m_run;
    /// Of the previous run, while it closes its devices.
    std::thread m_closing;
};

}  // namespace kinesta
