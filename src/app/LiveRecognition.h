#pragma once

#include "app/Desktop.h"
#include "recognition/MultitouchService.h"

namespace kinesta {

/// Recognition on the trackpad of a desktop. Follows the pad as it is connected and disconnected. Main thread only; the
/// desktop must outlive it.
class LiveRecognition {
  public:
    explicit LiveRecognition(Desktop& desktop);
    ~LiveRecognition();
    LiveRecognition(const LiveRecognition&) = delete;
    LiveRecognition& operator=(const LiveRecognition&) = delete;

    MultitouchService& service() { return m_service; }
    LiveTrackpad::Identity identity() const { return m_trackpad.identity(); }

    /// Begins to read the trackpad, if recognition is on.
    void start();

    /// Applies the stored settings again.
    void reloadSettings();

  private:
    LiveTrackpad& m_trackpad;
    MultitouchService m_service;
};

}  // namespace kinesta
