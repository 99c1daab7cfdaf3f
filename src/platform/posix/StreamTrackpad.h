#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>

#include "app/LiveTrackpad.h"
#include "input/recording/RecordedPad.h"
#include "platform/posix/InterruptibleStream.h"

namespace kinesta {

/// A recording, or a FIFO to which one is written, in place of the touchpad. Opened once, and read until its end or the
/// first bad line, also while contacts() is stopped. Main thread only; a thread of its own waits for the lines and
/// reads a little ahead.
class StreamTrackpad final : public LiveTrackpad {
  public:
    /// `mainThread` and `clock` must outlive this.
    StreamTrackpad(MainThread& mainThread, const Clock& clock, std::string path);
    ~StreamTrackpad() override;
    StreamTrackpad(const StreamTrackpad&) = delete;
    StreamTrackpad& operator=(const StreamTrackpad&) = delete;

    TrackpadContactProviding& contacts() override { return m_pad; }
    PointerEventMonitoring& pointerEvents() override { return m_pad.pointerEvents(); }
    const Clock& clock() const override { return m_pad.clock(); }
    /// A recording can tell any pressure.
    Identity identity() const override;
    /// There is no other one to choose.
    void choose(const std::string&) override {}
    void onStatusChange(std::function<void()> handler) override { m_pad.setStatusHandler(std::move(handler)); }
    void watch(std::function<void(const PadEvent&)> watcher) override { m_pad.setWatcher(std::move(watcher)); }

  private:
    void begin();
    void read();
    std::string readToEnd();
    void post(std::function<void()> task);

    MainThread& m_mainThread;
    std::string m_path;
    InterruptibleStream m_input;
    /// Why it could not be opened, or empty.
    std::string m_problem;
    RecordedPad m_pad;
    /// How many more events may be read ahead.
    std::counting_semaphore<> m_room;
    std::atomic<bool> m_isEnding = false;
    /// Tasks of the thread hold it weakly.
    std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true);
    std::thread m_thread;
};

}  // namespace kinesta
