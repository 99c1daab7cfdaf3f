#pragma once

#include <chrono>
#include <cstdio>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/touchpad/EvdevContactProvider.h"
#include "support/RunLoop.h"

namespace kinesta::vm {

using Lines = std::vector<std::string>;

/// How long to wait to see that nothing happens.
inline constexpr std::chrono::milliseconds kMoment(300);

/// The uptime, in seconds.
inline double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// A provider whose deliveries are collected as short text. The test's thread is its main thread.
class PadReading {
  public:
    explicit PadReading(const std::string& device = "") : m_provider(m_mainThread, {.device = device, .pressure = {}}) {
        m_provider.setFrameHandler([this](const TrackpadContactFrame& frame) {
            std::string line = "t";
            for (const TouchSample& sample : frame.samples) {
                char contact[64];
                std::snprintf(contact, sizeof contact, " %d@%.2f,%.2f", sample.id, sample.position.x,
                              sample.position.y);
                line += contact;
            }
            add(line, frame.timestamp);
            const std::lock_guard passing(frameGate);
        });
        m_provider.setPointerHandler([this](const PadEvent& event) {
            if (const auto* pointer = std::get_if<PadButton>(&event.content))
                add(*pointer == PadButton::down ? "down" : "up", event.time);
            else if (const auto* pressure = std::get_if<PadPressure>(&event.content))
                add("stage " + std::to_string(pressure->stage), event.time);
        });
        m_provider.setStatusHandler([this] { add(status()); });
        m_provider.start();
    }

    EvdevContactProvider& provider() { return m_provider; }
    std::string status() const {
        using Kind = TrackpadContactProviderStatus::Kind;
        const auto status = m_provider.status();
        return status.kind == Kind::listening ? "listening" : status.kind == Kind::stopped ? "stopped" : status.message;
    }

    /// Runs the main thread until `count` lines have arrived and takes all; fewer after `limit`.
    /// Frames read "t 1@0.25,0.50 2@…" without the time, or "t" for an empty one; clicks "down" and "up"; stages
    /// "stage 2"; changes of the status "listening" or the message.
    Lines take(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(5)) {
        bool isLate = false;
        const DelayedTask timeout = m_mainThread.after(limit, [&] {
            isLate = true;
            m_mainThread.quit();
        });
        for (;; m_mainThread.run()) {  // until add() is called
            const std::lock_guard lock(m_lock);
            if (m_lines.size() < count && !isLate)
                continue;
            m_takenTimes = std::exchange(m_times, {});
            return std::exchange(m_lines, {});
        }
    }
    /// Takes lines until one is `last`. Returns whether it came. `taken` counts the lines.
    bool takeUntil(const std::string& last, std::size_t* taken = nullptr) {
        for (;;) {
            const Lines lines = take(1);
            if (taken)
                *taken += lines.size();
            if (lines.empty() || lines.back() == last)
                return !lines.empty();
        }
    }

    /// Times of the frames and clicks of the last take(), seconds.
    const std::vector<double>& times() const { return m_takenTimes; }

    /// The driver's thread locks it for every frame: a test that holds it delays the reader.
    std::mutex frameGate;

  private:
    void add(const std::string& line, double time = 0) {
        const std::lock_guard lock(m_lock);
        m_lines.push_back(line);
        m_times.push_back(time);
        m_mainThread.quit();
    }

    RunLoop m_mainThread;
    std::mutex m_lock;  // guards the next two
    Lines m_lines;
    std::vector<double> m_times;

    std::vector<double> m_takenTimes;
    EvdevContactProvider m_provider;
};

}  // namespace kinesta::vm
