#pragma once

#include <string_view>

#include "cli/terminal/Console.h"

namespace kinesta {

/// Writes log lines that start with the time of day. Flushes after each.
class LogLines {
  public:
    explicit LogLines(const Console& console) : m_console(console) {}

    void write(std::string_view line) const;

  private:
    const Console& m_console;
};

}  // namespace kinesta
