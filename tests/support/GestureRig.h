#pragma once

#include <optional>
#include <sstream>
#include <string>

#include "input/PointerEventBroadcaster.h"
#include "input/TrackpadContactProviding.h"
#include "recognition/MultitouchService.h"
#include "support/ArrivalClock.h"
#include "support/FakeUserDefaults.h"
#include "support/PadScript.h"
#include "support/Text.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

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
    void start() override { log("start", statusAfterStart); }
    void stop() override { log("stop", TrackpadContactProviderStatus::stopped()); }

    /// Changes the status, as a connected or removed pad does.
    void becomes(TrackpadContactProviderStatus status) { m_status = std::move(status); }

    /// Sends a frame even if not started: a driver may be late.
    void send(const TrackpadContactFrame& frame) const { m_handler.call(frame); }

  private:
    void log(const char* call, const TrackpadContactProviderStatus& status) {
        calls.emplace_back(call);
        m_status = status;
    }

    FrameHandlerSlot m_handler;
    TrackpadContactProviderStatus m_status;
};

/// The multitouch service among fakes, in virtual time, and what it has delivered.
struct GestureRig {
    FakeUserDefaults defaults;
    FakeContactProvider provider;
    PointerEventBroadcaster pointer;
    VirtualMainThread mainThread;
    VirtualClock virtualClock{mainThread};
    ArrivalClock clock{virtualClock};
    /// Each with its time, joined by "; ": "0.37 singleTap of 2", "0.5 edgeSlide of 2 left -1",
    /// "2.1 anchorDraw topLeft lineUp".
    std::string gestures;
    std::optional<MultitouchService> service;

    /// Makes the service, as at the start of the application.
    MultitouchService& launch() { return launch(provider, pointer, clock); }
    MultitouchService& launch(TrackpadContactProviding& contacts, PointerEventMonitoring& clicks,
                              const Clock& arrival) {
        service.emplace(defaults, contacts, clicks, mainThread, arrival);
        service->onTap = [this](const DetectedTap& tap) { add(rawValue(tap.gesture), " of ", tap.fingerCount); };
        service->onEdgeSlide = [this](const DetectedEdgeSlide& slide) {
            add("edgeSlide of ", slide.fingerCount, " ", rawValue(slide.side), slide.steps > 0 ? " +" : " ",
                slide.steps);
        };
        service->onAnchorDraw = [this](const DetectedAnchorDraw& draw) {
            add("anchorDraw ", rawValue(draw.corner), " ", rawValue(draw.pattern));
        };
        service->startIfEnabled();
        return *service;
    }

    /// Plays a script: before each event the timers that are due earlier, after it what it has posted.
    void play(const PadScript& script) {
        for (const RecordingEvent& event : script.events()) {
            runUntil(eventTime(event));
            send(event);
            mainThread.runPosted();
        }
    }
    void runUntil(Seconds time) { mainThread.advanceTo(VirtualMainThread::Time(std::llround(time * 1e9))); }

    /// Delivers what is given and leaves what that posts for later.
    void send(const PadScript& script) {
        for (const RecordingEvent& event : script.events())
            send(event);
    }
    void send(const RecordingEvent& event) {
        const auto* pad = std::get_if<PadEvent>(&event);
        if (!pad) {
            change(std::get<SettingsChange>(event).settings);
        } else if (const auto* frame = std::get_if<PadFrame>(&pad->content)) {
            clock.setUptime(frame->received.value_or(pad->time));
            provider.send({frame->samples, pad->time});
            clock.clearUptime();
        } else {
            pointer.deliver(*pad);
        }
    }

  protected:
    template <typename... Parts>
    void add(const Parts&... parts) {
        std::ostringstream text;
        text << (gestures.empty() ? "" : "; ") << numberText(clock.wallClock()) << " ";
        (text << ... << parts);
        gestures += text.str();
    }

  private:
    void change(const RecordedSettings& settings) {
        if (settings.gesturesEnabled)
            service->setGestureEnabled(*settings.gesturesEnabled);
        if (settings.tapWaitingMilliseconds)
            service->setTapWaitingInterval(TapWaitingInterval::fromRawValue(*settings.tapWaitingMilliseconds).value());
        if (settings.cornerPalmRejectionEnabled)
            service->setCornerPalmRejectionEnabled(*settings.cornerPalmRejectionEnabled);
    }
};

/// All gestures of a script, played to its end and beyond.
inline std::string play(const PadScript& script) {
    GestureRig rig;
    rig.launch();
    rig.play(script);
    rig.mainThread.runRemaining();
    return rig.gestures;
}

}  // namespace kinesta::testing
