#pragma once

#include <chrono>
#include <functional>

#include "cli/ReplaySession.h"
#include "support/RunLoop.h"

namespace kinesta {

/// Plays one recording at the pace at which it was made: the session's virtual time follows the loop's real time, so
/// that what is recognized, and when, is the same as without waiting.
class PacedPlayer {
  public:
    /// `onEvent` sees each event after it was delivered; `onEnd` is called once, with the reader's error if there was
    /// one. All must outlive the player.
    PacedPlayer(RunLoop& loop, const Clock& clock, RecordingReading& reader, ReplaySession& session,
                std::function<void(const RecordingEvent&)> onEvent, std::function<void(std::optional<Error>)> onEnd);

    void start();

    /// Goes on as if this time had not passed, in which the program was stopped.
    void passOver(Seconds time) { m_realStart += time; }

  private:
    void readNext();
    void proceed();

    RunLoop& m_loop;
    const Clock& m_clock;
    RecordingReading& m_reader;
    ReplaySession& m_session;
    std::function<void(const RecordingEvent&)> m_onEvent;
    std::function<void(std::optional<Error>)> m_onEnd;
    std::optional<RecordingEvent> m_next;
    std::optional<Error> m_error;
    Uptime m_realStart = 0;
    ReplaySession::Time m_virtualStart{};
    ReplaySession::Time m_lastEvent{};
    DelayedTask m_wake;
};

}  // namespace kinesta
