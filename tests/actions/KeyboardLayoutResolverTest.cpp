#include "actions/KeyboardLayoutResolver.h"

#include <gtest/gtest.h>

#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

TEST(KeyboardLayoutResolver, FindsTheLowestKeyInEitherCase) {
    FakeActionDesktop desktop;
    KeyboardLayoutCharacters& characters = desktop.characters.emplace();
    const KeyboardLayoutResolver resolver(desktop);
    characters[0] = "q";
    characters[12] = "a";
    characters[13] = "A";
    characters[20] = "Y";
    characters[40] = "aa";
    characters[127] = "[";
    const std::vector<std::pair<const char*, std::uint16_t>> rows{
        {"A", 12}, {"q", 0}, {"Y", 20}, {"[", 127}, {"Z", 99}, {"Return", 99}, {"aa", 99}, {"", 99},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(resolver.keyCode(name, 99), expected) << name;
    desktop.characters.reset();
    EXPECT_EQ(resolver.keyCode("a", 99), 99);
}

}  // namespace
}  // namespace kinesta::testing
