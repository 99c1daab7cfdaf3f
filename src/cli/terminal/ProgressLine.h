#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "cli/terminal/Console.h"

namespace kinesta {

/// One line on the error stream with the progress of long work. Shown only on a terminal and only after half a second,
/// and removed at the end.
class ProgressLine {
  public:
    ProgressLine(const Console& console, std::string label);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Call it at each step: most calls neither read the clock nor call `progress` (0 to 1, if known).
    void step(const std::function<std::optional<double>()>& progress);

  private:
    const Console& m_console;
    std::string m_label;
    std::uint64_t m_steps = 0;
    bool m_isShown = false;
    std::chrono::steady_clock::time_point m_nextUpdate;
};

}  // namespace kinesta
