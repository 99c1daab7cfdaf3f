#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kinesta {

inline std::vector<std::string> split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (std::size_t to; (to = text.find(separator, from)) != std::string::npos; from = to + separator.size())
        parts.push_back(text.substr(from, to - from));
    parts.push_back(text.substr(from));
    return parts;
}

/// The rows "left => right" of a table with this number of columns, one per line. Skips empty lines.
inline std::vector<std::vector<std::string>> tableRows(const std::string& table, std::size_t columns = 2) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : split(table, "\n"))
        if (!line.empty()) {
            rows.push_back(split(line, " => "));
            EXPECT_EQ(rows.back().size(), columns) << line;
        }
    return rows;
}

}  // namespace kinesta
