#include "support/Picture.h"

#include <gtest/gtest.h>

#include "support/TableRows.h"
#include "support/Text.h"

namespace kinesta::testing {
namespace {

std::string described(const Path& path) {
    std::string text;
    for (const Path::Segment& segment : path.segments) {
        const auto kind = static_cast<std::size_t>(segment.kind);
        text += (text.empty() ? "" : " ") + std::string(1, "MLCZ"[kind]);
        for (std::size_t i = 0; i < std::size_t{kind == 2 ? 3U : kind == 3 ? 0U : 1U}; ++i)
            text += (i > 0 ? " " : "") + numberText(std::round(segment.points[i].x * 100) / 100 + 0.0) + "," +
                    numberText(std::round(segment.points[i].y * 100) / 100 + 0.0);
    }
    return text;
}

TEST(PathText, ReadsEveryLetter) {
    const auto rows = tableRows(R"(
M1 2L3,4 5 6 => M1,2 L3,4 L5,6
m1 2 3 4zl1-1 => M1,2 L4,6 Z L2,1
M0 0h-.5v1.5H2V3 => M0,0 L-0.5,0 L-0.5,1.5 L2,1.5 L2,3
M1 1c1 0 2 1 2 2C9 9 8 8 7 7 => M1,1 C2,1 3,2 3,3 C9,9 8,8 7,7
M0 1A1 1 0 0 1 1 0 => M0,1 C0,0.45 0.45,0 1,0
M0 1a1 1 0 0 0 1-1 => M0,1 C0.55,1 1,0.55 1,0
M1 0A1 1 0 1 1 0 1 => M1,0 C1.55,0 2,0.45 2,1 C2,1.55 1.55,2 1,2 C0.45,2 0,1.55 0,1
M0 0a1 2 0 0 1 4 0 => M0,0 C0,-2.21 0.9,-4 2,-4 C3.1,-4 4,-2.21 4,0
)");
    for (const auto& row : rows)
        EXPECT_EQ(described(Path::parse(row[0])), row[1]) << row[0];
    for (const char* text : {"1 2", "M1", "M1 -", "M1 2z3", "M1 2 X", "M.. 2"})
        EXPECT_DEATH(Path::parse(text), "") << text;
}

}  // namespace
}  // namespace kinesta::testing
