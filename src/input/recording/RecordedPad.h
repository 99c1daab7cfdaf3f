#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "input/PointerEventBroadcaster.h"
#include "input/TrackpadContactProviding.h"
#include "input/recording/RecordingEvent.h"
#include "support/ArrivalClock.h"
#include "support/MainThread.h"

namespace kinesta {

/// Plays a recording in real time in place of a pad. Main thread only; calls the frame handler there, too.
///
/// The first event counts as now. Each later one is delivered at its distance from the first, or at once if that is
/// past. Its time stamp is the time when it was due, so recognition judges a late event as it was recorded. Settings in
/// the recording change nothing.
class RecordedPad final : public TrackpadContactProviding {
  public:
    /// What happens to events while the pad is stopped.
    enum class Source {
        /// Each is dropped when it is due: the recording goes on, as the fingers on a real pad do.
        file,
        /// Each is dropped as soon as it is taken, so that no writer has to wait.
        live,
    };

    /// The other end: where the events come from.
    struct Feed {
        /// Called once, before the first start() or stop() returns. Calls take() and end() from then on.
        std::function<void()> begin;
        /// Called after each event of take() has been delivered or dropped.
        std::function<void()> taken;
    };

    /// `mainThread` and `clock` must outlive this.
    RecordedPad(MainThread& mainThread, const Clock& clock, Source source, Feed feed);

    FrameHandler frameHandler() const override { return m_frameHandler.handler(); }
    void setFrameHandler(FrameHandler handler) override { m_frameHandler.setHandler(std::move(handler)); }
    TrackpadContactProviderStatus status() const override { return m_status; }
    void start() override;
    void stop() override;

    PointerEventMonitoring& pointerEvents() { return m_pointer; }

    /// The time at which the event that is being delivered arrived, otherwise the present time.
    const Clock& clock() const { return m_arrival; }

    /// `handler` is called when the status has changed by itself. It may start and stop this.
    void setStatusHandler(std::function<void()> handler) { m_statusHandler = std::move(handler); }

    /// `watcher` is called with each event after its delivery.
    void setWatcher(std::function<void(const PadEvent&)> watcher) { m_watcher = std::move(watcher); }

    /// Takes the next event, however early.
    void take(RecordingEvent event);

    /// No event follows. When the last one has been delivered and what may wait for another has been recognized, the
    /// status becomes unavailable with this sentence, until the end of this object.
    void end(std::string why);

  private:
    void begin();
    void proceed();
    void proceedLater();
    std::chrono::nanoseconds timeLeft() const;
    void deliver(const PadEvent& recorded);
    void finish();

    /// A recorded time on the clock of this machine.
    Uptime placed(Seconds time) const { return m_start + (time - *m_first); }

    MainThread& m_mainThread;
    const Clock& m_clock;
    Source m_source;
    Feed m_feed;
    ArrivalClock m_arrival{m_clock};
    FrameHandlerSlot m_frameHandler;
    PointerEventBroadcaster m_pointer;
    std::function<void()> m_statusHandler;
    std::function<void(const PadEvent&)> m_watcher;
    TrackpadContactProviderStatus m_status;
    bool m_hasBegun = false;
    /// Recorded time of the first event, and when it came.
    std::optional<Seconds> m_first;
    Uptime m_start = 0;
    std::deque<RecordingEvent> m_pending;
    std::optional<std::string> m_end;
    bool m_hasEnded = false;
    DelayedTask m_next;
};

}  // namespace kinesta
