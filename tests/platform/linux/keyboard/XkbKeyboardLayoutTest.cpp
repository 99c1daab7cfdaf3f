#include "platform/linux/keyboard/XkbKeyboardLayout.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

/// What the keys type according to the system's keyboard file with this content, without an X server.
std::optional<KeyboardLayoutCharacters> charactersBy(const std::string& content) {
    const TemporaryFolder folder;
    X11Connection nowhere("no such display");
    X11Keyboard keyboard(nowhere);
    return XkbKeyboardLayout(keyboard, folder.write("keyboard", content)).charactersWithoutModifiers();
}

TEST(XkbKeyboardLayout, FallsBackToTheLayoutOfTheSystem) {
    for (const auto& [content, yAndQ] : {std::pair{"# set up\nXKBMODEL=\"pc105\"\nXKBLAYOUT=\"de\"\n\n", "zq"},
                                         {"XKBLAYOUT='fr,us'", "ya"},
                                         {" XKBLAYOUT = us \nXKBVARIANT=dvorak", "f'"},
                                         {"XKBLAYOUT=\nBACKSPACE=guess", "yq"},
                                         {"no line with the sign", "yq"}}) {
        const auto characters = charactersBy(content);
        EXPECT_EQ(characters ? (*characters)[16] + (*characters)[12] : "none", yAndQ) << content;
    }
    EXPECT_FALSE(charactersBy("XKBLAYOUT=nonexistent"));
    const auto international = charactersBy("XKBLAYOUT=us\nXKBVARIANT=intl");
    for (const std::size_t silent : {50U, 39U, 56U, 63U})  // a dead grave, a dead acute, Shift, no key
        EXPECT_EQ(international->at(silent), "") << silent;
    EXPECT_EQ(international->at(41), ";");
}

}  // namespace
}  // namespace kinesta
