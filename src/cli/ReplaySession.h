#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "input/PointerEventBroadcaster.h"
#include "input/recording/RecordingReading.h"
#include "input/recording/ReplayContactProvider.h"
#include "recognition/MultitouchService.h"
#include "rules/RuleSelection.h"
#include "support/ArrivalClock.h"
#include "support/InMemoryUserDefaults.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"

namespace kinesta {

/// Gesture recognition over one recording, in virtual time. Gestures are delivered at the same times as live.
class ReplaySession {
  public:
    using Time = std::chrono::nanoseconds;
    using Handler = std::function<void(Time, const DetectedGesture&)>;

    /// Recognition starts with the header's settings. `onGesture` receives each finished gesture with the time of its
    /// delivery.
    ReplaySession(const RecordingHeader& header, Handler onGesture);

    /// Runs every timer due before the event, then delivers the event and its immediate results.
    void deliver(const RecordingEvent& event);

    /// Runs the timers that are due at `time` or before.
    void runTimersThrough(Time time);

    /// When the next timer is due, if there is one.
    std::optional<Time> nextTimer() const { return m_mainThread.nextTimer(); }

    /// Runs the remaining timers after the last event.
    void finish() { m_mainThread.runRemaining(); }

    /// The time of an event on the clock of the replay: `seconds` × 10⁹ rounded to the nearest.
    static Time timeOf(Seconds seconds);

  private:
    void apply(const RecordedSettings& settings);

    VirtualMainThread m_mainThread{Time::min()};
    VirtualClock m_time{m_mainThread};
    ArrivalClock m_clock{m_time};
    InMemoryUserDefaults m_defaults;
    ReplayContactProvider m_provider;
    PointerEventBroadcaster m_pointer;
    Handler m_onGesture;
    std::optional<MultitouchService> m_service;  // made once the header's settings are stored
};

}  // namespace kinesta
