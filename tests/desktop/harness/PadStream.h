#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <fstream>
#include <string>

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {

using Clock = std::chrono::steady_clock;

inline double millisecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// Fingers on the trackpad of an application that runs with `--trackpad pad`.
struct PadStream {
    PadStream() { mkfifo("pad", 0600); }

    /// Opens the pad for writing. The application has opened it before.
    void openPad() {
        pad.open("pad");
        pad << "{\"kinesta\":\"recording\",\"version\":1}" << std::endl;
    }
    /// Returns when the line with the last lift, which is then due, has been written.
    Clock::time_point tapThreeTimes(int fingers) {
        const auto begin = Clock::now();
        const double time = std::chrono::duration<double>(begin.time_since_epoch()).count();
        std::string touches;
        for (int id = 1; id <= fingers; ++id)
            touches += (id > 1 ? ",[" : "[") + std::to_string(id) + ",0." + std::to_string(3 + id) + ",0.5]";
        for (int frame = 1; frame <= 6; ++frame) {
            if (frame == 6)
                eventually([&] { return millisecondsSince(begin) > 300; });
            pad << "{\"t\":" << std::fixed << time + 0.05 * frame << ",\"touches\":[" << (frame % 2 == 1 ? touches : "")
                << "]}" << std::endl;
        }
        return Clock::now();
    }

    std::ofstream pad;
};

}  // namespace kinesta::testing
