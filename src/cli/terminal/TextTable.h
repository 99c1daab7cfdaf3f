#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/terminal/Console.h"

namespace kinesta {

/// Number of terminal columns that a text takes: 0 for a combining character, 2 for a wide one, 1 for any other.
std::size_t displayWidth(std::string_view text);

/// `text` cut to `width` columns, with "…" at the end if anything was cut.
std::string fitted(std::string_view text, std::size_t width);

/// A table for people: aligned columns under a headline, cut to the terminal's width at the last column. Control
/// characters are shown as "·", so that text from elsewhere cannot control the terminal.
class TextTable {
  public:
    explicit TextTable(std::vector<std::string> headline) : m_rows{std::move(headline)} {}

    void add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
    void print(const Console& console) const;

  private:
    std::vector<std::vector<std::string>> m_rows;
};

/// Text from elsewhere with every control character replaced by "·".
std::string printable(std::string_view text);

}  // namespace kinesta
