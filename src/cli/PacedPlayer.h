#pragma once

#include <chrono>
#include <functional>

#include "cli/ReplaySession.h"
#include "support/Clock.h"
#include "support/MainThread.h"

namespace kinesta {

/// Plays one recording at the pace at which it was made. The session's virtual time follows real time, so it recognizes
/// the same gestures at the same times as a replay without waiting.
class PacedPlayer {
  public:
    /// Calls `onEvent` with each event after its delivery, and `onEnd` once, with the reader's error if there was one.
    /// All arguments must outlive the player.
    PacedPlayer(MainThread& mainThread, const Clock& clock, RecordingReading& reader, ReplaySession& session,
                std::function<void(const RecordingEvent&)> onEvent, std::function<void(std::optional<Error>)> onEnd);

    void start();

    /// Skips this much time, during which the program was stopped.
    void passOver(Seconds time) { m_realStart += time; }

  private:
    void readNext();
    void proceed();

    MainThread& m_mainThread;
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
