#pragma once

#include <optional>
#include <sstream>
#include <string>

#include "recognition/MultitouchService.h"
#include "support/FakeContactProvider.h"
#include "support/FakePointerEvents.h"
#include "support/FakeUserDefaults.h"
#include "support/PadScript.h"
#include "support/Text.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

namespace kinesta::testing {

/// The multitouch service among fakes, in virtual time, and what it has delivered.
struct GestureRig {
    FakeUserDefaults defaults;
    FakeContactProvider provider;
    FakePointerEvents pointer;
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    /// Each with its time, joined by "; ": "0.37 singleTap of 2", "0.5 edgeSlide of 2 left -1",
    /// "2.1 anchorDraw topLeft lineUp".
    std::string gestures;
    std::optional<MultitouchService> service;

    /// Makes the service, as at the start of the application.
    MultitouchService& launch() {
        service.emplace(defaults, provider, pointer, mainThread, clock);
        service->onTap = [this](int fingers, GestureKind kind) { add(rawValue(kind), " of ", fingers); };
        service->onEdgeSlide = [this](int fingers, EdgeSlideSide side, std::int64_t steps) {
            add("edgeSlide of ", fingers, " ", rawValue(side), steps > 0 ? " +" : " ", steps);
        };
        service->onAnchorDraw = [this](AnchorCorner corner, DrawPattern pattern) {
            add("anchorDraw ", rawValue(corner), " ", rawValue(pattern));
        };
        service->startIfEnabled();
        return *service;
    }

    /// Plays a script: before each event the timers that are due earlier, after it what it has posted.
    void play(const PadScript& script) {
        for (const RecordingEvent& event : script.events()) {
            runUntil(event.time);
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
        if (const auto* frame = std::get_if<RecordedFrame>(&event.content)) {
            clock.setUptime(frame->received.value_or(event.time));
            provider.send({frame->samples, event.time});
            clock.clearUptime();
        } else if (const auto* button = std::get_if<RecordedPointer>(&event.content)) {
            using Kind = PointerEvent::Kind;
            pointer.send({*button == RecordedPointer::down ? Kind::leftDown : Kind::leftUp, 0, event.time});
        } else if (const auto* pressure = std::get_if<RecordedPressure>(&event.content)) {
            pointer.send({PointerEvent::Kind::pressure, pressure->stage, event.time});
        } else {
            change(std::get<RecordedSettings>(event.content));
        }
    }

  private:
    template <typename... Parts>
    void add(const Parts&... parts) {
        std::ostringstream text;
        text << (gestures.empty() ? "" : "; ") << numberText(clock.wallClock()) << " ";
        (text << ... << parts);
        gestures += text.str();
    }
    void change(const RecordedSettings& settings) {
        if (settings.gesturesEnabled)
            service->setGestureEnabled(*settings.gesturesEnabled);
        if (settings.tapWaitingMilliseconds)
            service->setTapWaitingInterval(tapWaitingInterval(*settings.tapWaitingMilliseconds).value());
        if (settings.cornerPalmRejectionEnabled)
            service->setCornerPalmRejectionEnabled(*settings.cornerPalmRejectionEnabled);
        if (settings.cornerPalmRejectionSensitivity)
            service->setCornerPalmRejectionSensitivity(*settings.cornerPalmRejectionSensitivity);
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
