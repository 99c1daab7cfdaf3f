#include "ui/models/ActionWords.h"

#include <gtest/gtest.h>

namespace kinesta::testing {
namespace {

TEST(ActionWords, SayWhatIsWrongWithAnAddress) {
    const std::string scheme = "Kinesta opens web pages only: begin the address with http:// or https://.";
    const std::string characters = "An address has no blanks, quotes or backslashes: write them as %20, %22 or %5C.";
    struct Row {
        const char* address;
        AddressState state;
        std::string problem;
    };
    const std::vector<Row> rows{
        {"", AddressState::complete, ""},
        {" \t", AddressState::complete, ""},
        {"HTT", AddressState::beingTyped, ""},
        {"HTT", AddressState::complete, scheme},
        {"https:/", AddressState::beingTyped, ""},
        {"httpx", AddressState::beingTyped, scheme},
        {" https://a.example", AddressState::beingTyped, scheme},
        {"ftp://files.example.org", AddressState::complete, scheme},
        {"Https://a b", AddressState::beingTyped, characters},
    };
    for (const auto& [address, state, problem] : rows)
        EXPECT_EQ(addressProblem(address, false, state).value_or(""), problem) << address;
    EXPECT_FALSE(addressProblem("https://a.example", true, AddressState::complete));
}

}  // namespace
}  // namespace kinesta::testing
