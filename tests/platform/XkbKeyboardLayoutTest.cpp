#include "platform/linux/XkbKeyboardLayout.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace kinesta {
namespace {

/// What the keys type by the system's own set-up, given this file of it and no X server.
std::optional<KeyboardLayoutCharacters> charactersBy(const std::string& content) {
    const auto path = std::filesystem::temp_directory_path() / ("kinesta-keyboard-" + std::to_string(getpid()));
    std::ofstream(path) << content;
    X11Connection nowhere("no such display");
    X11Keyboard keyboard(nowhere);
    const auto characters = XkbKeyboardLayout(keyboard, path).charactersWithoutModifiers();
    std::filesystem::remove(path);
    return characters;
}

TEST(XkbKeyboardLayout, FallsBackToTheLayoutOfTheSystem) {
    constexpr std::uint16_t kY = 16;
    constexpr std::uint16_t kQ = 12;
    struct Row {
        const char* content;
        const char *y, *q;
    };
    for (const Row& row : {
             Row{"# set up\nXKBMODEL=\"pc105\"\nXKBLAYOUT=\"de\"\n\nXKBVARIANT=\"\"\n", "z", "q"},
             Row{"XKBLAYOUT='fr,us'", "y", "a"},
             Row{" XKBLAYOUT = us \nXKBVARIANT=dvorak", "f", "'"},
             Row{"XKBLAYOUT=\nBACKSPACE=guess", "y", "q"},
             Row{"no line with the sign", "y", "q"},
             Row{"", "y", "q"},
         }) {
        const auto characters = charactersBy(row.content);
        ASSERT_TRUE(characters) << row.content;
        EXPECT_EQ((*characters)[kY], row.y) << row.content;
        EXPECT_EQ((*characters)[kQ], row.q) << row.content;
    }
    EXPECT_FALSE(charactersBy("XKBLAYOUT=nonexistent")) << "unknown is better said than guessed";
}

TEST(XkbKeyboardLayout, TellsOnlyWhatAKeyTypesAtOnce) {
    const auto characters = charactersBy("XKBLAYOUT=us\nXKBVARIANT=intl");
    ASSERT_TRUE(characters);
    EXPECT_EQ((*characters)[50], "") << "a dead grave";
    EXPECT_EQ((*characters)[39], "") << "a dead acute";
    EXPECT_EQ((*characters)[56], "") << "Shift";
    EXPECT_EQ((*characters)[63], "") << "no key";
    EXPECT_EQ((*characters)[41], ";");
    EXPECT_EQ((*characters)[18], "1");
}

}  // namespace
}  // namespace kinesta
