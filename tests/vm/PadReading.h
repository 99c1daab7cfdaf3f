#pragma once

#include <chrono>
#include <mutex>
#include <string>
#include <vector>

#include "platform/linux/touchpad/EvdevContactProvider.h"
#include "support/RunLoop.h"

namespace kinesta::vm {

using Lines = std::vector<std::string>;

/// How long to wait to see that nothing happens.
inline constexpr std::chrono::milliseconds kMoment(300);

/// The uptime, in seconds.
double now();

/// A provider whose deliveries are collected as short text. The test's thread is its main thread.
class PadReading {
  public:
    explicit PadReading(const std::string& device = "");

    EvdevContactProvider& provider() { return m_provider; }
    std::string status() const;

    /// Runs the main thread until `count` lines have arrived and takes all; fewer after `limit`.
    /// Frames read "t 1@0.25,0.50 2@…" without the time, or "t" for an empty one; clicks "down" and "up"; stages
    /// "stage 2"; changes of the status "listening" or the message.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5));
    /// Takes lines until one is `last`. Returns whether it came. `taken` counts the lines.
    bool takeUntil(const std::string& last, std::size_t* taken = nullptr);

    /// Times of the frames and clicks of the last take(), seconds.
    const std::vector<double>& times() const { return m_takenTimes; }

    /// The driver's thread locks it for every frame: a test that holds it delays the reader.
    std::mutex frameGate;

  private:
    void add(std::string line, double time = 0);

    RunLoop m_mainThread;
    std::mutex m_lock;  // guards the next two
    Lines m_lines;
    std::vector<double> m_times;

    std::vector<double> m_takenTimes;
    EvdevContactProvider m_provider;
};

}  // namespace kinesta::vm
