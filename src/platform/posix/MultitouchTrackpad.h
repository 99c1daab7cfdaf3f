#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>

#include "app/LiveTrackpad.h"
#include "input/PadEventRelay.h"
#include "input/multitouch/MultitouchSupportContactProvider.h"
#include "support/Clock.h"
#include "support/MainThread.h"

namespace kinesta {

/// The trackpad that a multitouch library reads: contacts from the library, clicks from the desktop. Main thread only.
/// The constructor's arguments must outlive this.
class MultitouchTrackpad final : public LiveTrackpad {
  public:
    /// `identity` names the pad. A library at another path than the system's is for tests and for bringing one up.
    MultitouchTrackpad(MainThread& mainThread, const Clock& clock, PointerEventMonitoring& pointerEvents,
                       Identity identity, std::string libraryPath = MultitouchSupportContactProvider::kFrameworkPath);
    /// Waits for a frame that is being delivered.
    ~MultitouchTrackpad() override;
    MultitouchTrackpad(const MultitouchTrackpad&) = delete;
    MultitouchTrackpad& operator=(const MultitouchTrackpad&) = delete;

    TrackpadContactProviding& contacts() override { return m_contacts; }
    PointerEventMonitoring& pointerEvents() override { return m_pointerEvents; }
    const Clock& clock() const override { return m_clock; }
    Identity identity() const override { return m_identity; }
    /// There is no other one to choose.
    void choose(const std::string&) override {}
    /// The status changes only by start() and stop().
    void onStatusChange(std::function<void()>) override {}
    void watch(std::function<void(const PadEvent&)> watcher) override;

  private:
    /// The library's frames for the consumer's handler, and after it for the watcher.
    class Contacts final : public TrackpadContactProviding {
      public:
        Contacts(std::string libraryPath, PadEventRelay& watching);

        FrameHandler frameHandler() const override { return m_frameHandler.handler(); }
        void setFrameHandler(FrameHandler handler) override { m_frameHandler.setHandler(std::move(handler)); }
        TrackpadContactProviderStatus status() const override { return m_library.status(); }
        void start() override { m_library.start(); }
        void stop() override { m_library.stop(); }

      private:
        FrameHandlerSlot m_frameHandler;
        MultitouchSupportContactProvider m_library;
    };

    void offerClick(const PointerEvent& event);

    const Clock& m_clock;
    PointerEventMonitoring& m_pointerEvents;
    Identity m_identity;
    PadEventRelay m_watching;
    std::array<PointerEventMonitor, 2> m_watchedClicks;
    Contacts m_contacts;
};

}  // namespace kinesta
