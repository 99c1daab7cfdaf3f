#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct ConfigurationWindow : OpenWindow {
    /// What both the mouse and the keyboard make.
    static json made() {
        return json::parse(R"([{"name": "Reopen a tab", "isEnabled": true, "gesture": "doubleTap", "fingerCount": 4,
            "action": {"kind": "keyboardShortcut", "keyCode": 17, "modifiers": 9, "value": "",
                       "customCueLabel": "Tab is back"}}])");
    }
};

TEST_F(ConfigurationWindow, MakesARuleByMouse) {
    open();
    program->click("push button", "Add gesture");
    program->click("text", "Name");
    Program::type("Reopen a tab");
    program->click("radio button", "Tap");
    program->click("radio button", "Double");
    program->click("radio button", "4");
    program->click(program->awaitCombo("What happens"));
    program->click("list item", "Keyboard shortcut");
    program->click("push button", "Record shortcut");
    program->await("label", "Press the keys. Escape cancels, Delete clears.");
    Program::press("ctrl+shift+t");
    program->awaitGone("label", "Press the keys. Escape cancels, Delete clears.");
    program->click("text", "Cue text");
    Program::type("Tab is back");
    program->click("check box", "On");
    EXPECT_TRUE(becomesStored(made()));
}

TEST_F(ConfigurationWindow, MakesARuleByKeyboard) {
    open();
    ASSERT_TRUE(program->tabTo("push button", "Add gesture"));
    Program::press("space");
    ASSERT_TRUE(program->becomes(program->await("text", "Name"), Program::focused));
    Program::type("Reopen a tab");
    ASSERT_TRUE(program->tabTo("radio button", "Tap"));
    Program::press("space");
    ASSERT_TRUE(program->tabTo("radio button", "Single"));
    Program::press("d");
    ASSERT_TRUE(program->tabTo("radio button", "2"));
    Program::press("Right Right");
    ASSERT_TRUE(program->tabTo("combo box", "Choose an action…"));
    Program::press("k");
    ASSERT_TRUE(program->tabTo("push button", "Record shortcut"));
    Program::press("space");
    program->await("label", "Press the keys. Escape cancels, Delete clears.");
    Program::press("ctrl+shift+t");
    program->awaitGone("label", "Press the keys. Escape cancels, Delete clears.");
    ASSERT_TRUE(program->tabTo("text", "Cue text"));
    Program::type("Tab is back");
    ASSERT_TRUE(program->tabTo("check box", "On", "shift+Tab"));
    Program::press("space");
    EXPECT_TRUE(becomesStored(made()));
}

}  // namespace
}  // namespace kinesta::testing
