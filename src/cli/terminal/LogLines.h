#pragma once

#include <string_view>

#include "cli/terminal/Console.h"

namespace kinesta {

/// Writes lines with the time of day before them, each at once.
class LogLines {
  public:
    explicit LogLines(const Console& console) : m_console(console) {}

    void write(std::string_view line) const;

  private:
    const Console& m_console;
};

}  // namespace kinesta
