#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "cli/terminal/Console.h"

namespace kinesta {

/// One line on the error stream that tells how far long work has come; only on a terminal, only once the work has
/// taken half a second, and gone when it ends.
class ProgressLine {
  public:
    ProgressLine(const Console& console, std::string label);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// To be called once a step; looks at the clock and asks `progress` (0 to 1, if known) only now and then.
    void step(const std::function<std::optional<double>()>& progress);

  private:
    const Console& m_console;
    std::string m_label;
    std::uint64_t m_steps = 0;
    bool m_isShown = false;
    std::chrono::steady_clock::time_point m_nextUpdate;
};

}  // namespace kinesta
