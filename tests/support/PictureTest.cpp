#include "support/Picture.h"

#include <gtest/gtest.h>

#include "support/TableRows.h"
#include "support/Text.h"

namespace kinesta::testing {

/// The letter and the end of each segment.
std::string described(const Path& path) {
    const auto number = [](double value) { return numberText(std::round(value * 100) / 100); };
    std::string text;
    for (const auto& [kind, points] : path.segments) {
        const Point end = points[kind == Path::Segment::Kind::curve ? 2 : 0];
        text += std::string(" ") + "MLCZ"[static_cast<int>(kind)] + number(end.x) + "," + number(end.y);
    }
    return text;
}

TEST(PathText, ReadsEveryLetter) {
    for (const auto& row : tableRows(R"(
M1 2L3,4 5 6 =>  M1,2 L3,4 L5,6
m1 2 3 4zl1-1 =>  M1,2 L4,6 Z0,0 L2,1
M0 0h-.5v1.5H2V3 =>  M0,0 L-0.5,0 L-0.5,1.5 L2,1.5 L2,3
M1 1c1 0 2 1 2 2C9 9 8 8 7 7 =>  M1,1 C3,3 C7,7
M0 1A1 1 0 0 1 1 0 =>  M0,1 C1,0
M1 0A1 1 0 1 1 0 1 =>  M1,0 C2,1 C1,2 C0,1
M1 0a1 1 0 1 0 1 1 =>  M1,0 C0,1 C1,2 C2,1
M0 0a1 2 0 0 1 4 0 =>  M0,0 C2,-4 C4,0
)"))
        EXPECT_EQ(described(Path::parse(row[0])), row[1]);
    for (const char* text : {"1 2", "M1", "M1 -", "M1 2z3", "M1 2 X", "M.. 2"})
        EXPECT_DEATH(Path::parse(text), "") << text;
}

}  // namespace kinesta::testing
