#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

#include "platform/linux/touchpad/EvdevContactProvider.h"
#include "support/RunLoop.h"

namespace kinesta::vm {

using Lines = std::vector<std::string>;

/// As long as is waited to see that something does not happen.
inline constexpr std::chrono::milliseconds kMoment(300);

/// The uptime, in seconds.
double now();

/// A provider with ears: tells what it delivers as short text. The test's thread is the main thread.
class PadReading {
  public:
    explicit PadReading(EvdevContactProvider::Settings settings = {});
    ~PadReading();

    EvdevContactProvider& provider() { return m_provider; }
    std::string status() const;

    /// Waits, letting the main thread work, until `count` lines are there that no one has taken, and takes all.
    /// Frames read "t 1@0.25,0.50 2@…" without the time, or "t" for an empty one; clicks "down" and "up"; stages
    /// "stage 2"; changes of the status "listening" or the message. Fewer lines if they do not come in time.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5));

    /// Times of the frames and clicks of the last take(), seconds.
    const std::vector<double>& times() const { return m_takenTimes; }

    /// Makes the frame handler wait in its next frame until it is let go.
    void holdNextFrame();
    void waitUntilHeld();
    void letGo();

  private:
    void add(std::string line, double time);

    RunLoop m_mainThread;
    std::mutex m_lock;  // guards what follows
    std::condition_variable m_change;
    enum class Hold { none, wanted, held } m_hold = Hold::none;
    Lines m_lines;
    std::vector<double> m_times;

    std::vector<double> m_takenTimes;
    EvdevContactProvider m_provider;
};

}  // namespace kinesta::vm
