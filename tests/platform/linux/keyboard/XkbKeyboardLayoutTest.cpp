#include "platform/linux/keyboard/XkbKeyboardLayout.h"

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
    const auto yAndQ = [](const char* content) {
        const auto characters = charactersBy(content);
        return characters ? (*characters)[16] + (*characters)[12] : "none";
    };
    EXPECT_EQ(yAndQ("# set up\nXKBMODEL=\"pc105\"\nXKBLAYOUT=\"de\"\n\nXKBVARIANT=\"\"\n"), "zq");
    EXPECT_EQ(yAndQ("XKBLAYOUT='fr,us'"), "ya");
    EXPECT_EQ(yAndQ(" XKBLAYOUT = us \nXKBVARIANT=dvorak"), "f'");
    for (const char* content : {"XKBLAYOUT=\nBACKSPACE=guess", "no line with the sign", ""})
        EXPECT_EQ(yAndQ(content), "yq") << content;
    EXPECT_FALSE(charactersBy("XKBLAYOUT=nonexistent")) << "unknown is better said than guessed";
}

TEST(XkbKeyboardLayout, TellsOnlyWhatAKeyTypesAtOnce) {
    const auto characters = charactersBy("XKBLAYOUT=us\nXKBVARIANT=intl");
    ASSERT_TRUE(characters);
    for (const std::size_t silent : {50U, 39U, 56U, 63U})  // a dead grave, a dead acute, Shift, no key
        EXPECT_EQ((*characters)[silent], "") << silent;
    EXPECT_EQ((*characters)[41], ";");
    EXPECT_EQ((*characters)[18], "1");
}

}  // namespace
}  // namespace kinesta
