#include "input/recording/RecordedPad.h"

#include <algorithm>
#include <utility>

#include "input/TapWaitingInterval.h"

namespace kinesta {
namespace {

/// The end is reported this long after the last event: it cancels gestures that still wait for a further tap.
constexpr std::chrono::milliseconds kLastWait{TapWaitingInterval::veryLong + 100};

/// In one piece. Recorded times may be further apart than nanoseconds can count.
constexpr Seconds kLongestSleep = 86400;

}  // namespace

RecordedPad::RecordedPad(MainThread& mainThread, const Clock& clock, Source source, Feed feed)
    : m_mainThread(mainThread), m_clock(clock), m_source(source), m_feed(std::move(feed)) {}

void RecordedPad::start() {
    begin();
    m_status =
        m_hasEnded ? TrackpadContactProviderStatus::unavailable(*m_end) : TrackpadContactProviderStatus::listening();
}

void RecordedPad::stop() {
    begin();
    m_status = TrackpadContactProviderStatus::stopped();
    if (m_source == Source::file || m_pending.empty())
        return;
    for (; !m_pending.empty(); m_pending.pop_front())
        m_feed.taken();
    proceedLater();
}

void RecordedPad::begin() {
    if (!std::exchange(m_hasBegun, true))
        m_feed.begin();
}

void RecordedPad::take(RecordingEvent event) {
    if (!m_first) {
        m_first = eventTime(event);
        m_start = m_clock.uptime();
    }
    if (m_source == Source::live && m_status != TrackpadContactProviderStatus::listening()) {
        m_feed.taken();
        return;
    }
    m_pending.push_back(std::move(event));
    if (m_pending.size() == 1)
        proceedLater();
}

void RecordedPad::end(std::string why) {
    m_end = std::move(why);
    const bool mayAnythingWait = m_first && m_status == TrackpadContactProviderStatus::listening();
    if (!mayAnythingWait && m_pending.empty())
        finish();
    else if (m_pending.empty())
        proceedLater();
}

void RecordedPad::proceedLater() {
    if (!m_pending.empty())
        m_next = m_mainThread.after(timeLeft(), [this] { proceed(); });
    else if (m_end)
        m_next = m_mainThread.after(kLastWait, [this] { finish(); });
    else
        m_next.cancel();
}

/// Until the next event is due.
std::chrono::nanoseconds RecordedPad::timeLeft() const {
    const Seconds left = placed(eventTime(m_pending.front())) - m_clock.uptime();
    return wholeNanoseconds(std::clamp(left, 0.0, kLongestSleep));
}

// One event a task: what it has posted, and timers that are due meanwhile, run before the next one even if that is
// late.
void RecordedPad::proceed() {
    if (timeLeft() == std::chrono::nanoseconds::zero()) {
        const RecordingEvent event = std::move(m_pending.front());
        m_pending.pop_front();
        const auto* const recorded = std::get_if<PadEvent>(&event);
        if (recorded != nullptr && m_status == TrackpadContactProviderStatus::listening())
            deliver(*recorded);
        m_feed.taken();
    }
    proceedLater();
}

void RecordedPad::deliver(const PadEvent& recorded) {
    PadEvent event = recorded;
    event.time = placed(recorded.time);
    if (auto* const frame = std::get_if<PadFrame>(&event.content)) {
        if (frame->received)
            frame->received = placed(*frame->received);
        m_arrival.setUptime(frame->received.value_or(event.time));
        m_frameHandler.call({frame->samples, event.time});
    } else {
        m_arrival.setUptime(event.time);
        m_pointer.deliver(event);
    }
    m_arrival.clearUptime();
    if (const auto watcher = m_watcher)  // a copy: it may end the watching
        watcher(event);
}

void RecordedPad::finish() {
    m_hasEnded = true;
    if (m_status != TrackpadContactProviderStatus::listening())
        return;
    m_status = TrackpadContactProviderStatus::unavailable(*m_end);
    if (m_statusHandler)
        m_statusHandler();
}

}  // namespace kinesta
