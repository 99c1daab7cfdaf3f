#include "cli/PacedPlayer.h"

namespace kinesta {
namespace {

// Once the input has ended, no gesture waits longer than this; later timers only end feedback.
constexpr std::chrono::milliseconds kLongestWait{TapWaitingInterval::veryLong};

}  // namespace

PacedPlayer::PacedPlayer(MainThread& mainThread, const Clock& clock, RecordingReading& reader, ReplaySession& session,
                         std::function<void(const RecordingEvent&)> onEvent,
                         std::function<void(std::optional<Error>)> onEnd)
    : m_mainThread(mainThread),
      m_clock(clock),
      m_reader(reader),
      m_session(session),
      m_onEvent(std::move(onEvent)),
      m_onEnd(std::move(onEnd)) {}

void PacedPlayer::start() {
    readNext();
    m_realStart = m_clock.uptime();
    m_virtualStart = m_next ? ReplaySession::timeOf(eventTime(*m_next)) : ReplaySession::Time{};
    m_lastEvent = m_virtualStart;
    proceed();
}

void PacedPlayer::readNext() {
    auto next = m_reader.next();
    m_next = next ? std::move(*next) : std::nullopt;
    if (!next)
        m_error = next.error();
}

void PacedPlayer::proceed() {
    while (m_next || (!m_error && m_session.nextTimer())) {
        const auto timer = m_session.nextTimer();
        if (!m_next && *timer - m_lastEvent > kLongestWait) {
            m_session.finish();
            break;
        }
        const bool eventIsNext = m_next && (!timer || ReplaySession::timeOf(eventTime(*m_next)) <= *timer);
        const ReplaySession::Time due = eventIsNext ? ReplaySession::timeOf(eventTime(*m_next)) : *timer;
        const auto elapsed = std::chrono::duration<Seconds>(m_clock.uptime() - m_realStart);
        const auto wait = (due - m_virtualStart) - std::chrono::duration_cast<ReplaySession::Time>(elapsed);
        if (wait > ReplaySession::Time::zero()) {
            m_wake = m_mainThread.after(wait, [this] { proceed(); });
            return;
        }
        if (!eventIsNext) {
            m_session.runTimersThrough(due);
            continue;
        }
        const RecordingEvent event = std::move(*m_next);
        m_lastEvent = due;
        m_session.deliver(event);
        m_onEvent(event);
        readNext();
    }
    m_onEnd(m_error);
}

}  // namespace kinesta
