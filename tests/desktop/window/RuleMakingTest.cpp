#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct RuleMaking : OpenWindow {
    /// What both the mouse and the keyboard make.
    static json made() {
        return json::parse(R"({"name": "Reopen a tab", "isEnabled": true, "gesture": "doubleTap", "fingerCount": 4,
            "action": {"kind": "keyboardShortcut", "keyCode": 17, "modifiers": 9, "value": "",
                       "customCueLabel": "Tab is back"}})");
    }
};

TEST_F(RuleMaking, MakesARuleByMouse) {
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

TEST_F(RuleMaking, MakesARuleByKeyboard) {
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

TEST_F(RuleMaking, OffersASlideOnlyTheVolumeAndOthersEverythingElse) {
    open();
    Program::press("ctrl+n");
    program->click("radio button", "Vertical edge slide");
    EXPECT_FALSE(program->await("combo box", "Adjust system volume").has(Program::enabled));
    program->click("radio button", "Right");
    program->click("radio button", "2");
    program->click("check box", "On");
    json slide = {{"name", ""}, {"isEnabled", true}, {"gesture", "edgeSlide"}, {"fingerCount", 2}};
    slide["edgeSlideSide"] = "right";
    slide["action"] = {{"kind", "adjustVolume"}, {"modifiers", 0}, {"value", ""}};
    EXPECT_TRUE(becomesStored(slide));

    program->click("radio button", "Corner hold and draw (prototype)");
    program->click("radio button", "Bottom right");
    program->click("radio button", "V — left to right");
    program->click(program->await("combo box", "Choose an action…"));
    EXPECT_FALSE(program->find("list item", "Adjust system volume"));
    program->click("list item", "Close window");
    program->click("push button", "Turn on");
    json corner = {{"name", ""}, {"isEnabled", true}, {"gesture", "anchorDraw"}, {"anchorCorner", "bottomRight"}};
    corner["drawPattern"] = "vShape";
    corner["action"] = {{"kind", "closeWindow"}, {"modifiers", 0}, {"value", ""}};
    EXPECT_TRUE(becomesStored(corner));
}

TEST_F(RuleMaking, LaunchesAnApplicationWithArgumentsInTheirOrder) {
    const auto folder = folderOf("XDG_DATA_HOME") / "applications";
    std::filesystem::create_directories(folder);
    writeText(folder / "sample.desktop", "[Desktop Entry]\nType=Application\nName=Sample\nExec=/bin/true\n");
    open({rule("Launch")});
    program->click("combo box", "Middle mouse click");
    program->click("list item", "Launch application");
    program->click("push button", "Choose…");
    program->await("dialog", "Choose an application");
    Program::type("sam");
    program->click("push button", "Choose");
    program->await("label", "Sample");
    for (const std::string argument : {"--second", "first one"}) {
        program->click("push button", "Add argument");
        program->await("list item", "");  // its editor, which Qt does not show to screen readers, has the focus
        Program::type(argument);
        Program::press("Return");
    }
    ASSERT_TRUE(program->becomes(program->await("list", "Arguments"), Program::focused));
    Program::press("alt+Up");
    EXPECT_TRUE(eventually([] {
        const json action = stored()[0]["action"];
        return action.value("applicationArguments", json()) == json::array({"first one", "--second"});
    }));
    EXPECT_EQ(stored()[0]["action"]["value"], (folder / "sample.desktop").string());
    Program::press("Delete");
    EXPECT_TRUE(eventually([] { return stored()[0]["action"]["applicationArguments"] == json::array({"--second"}); }));
}

TEST_F(RuleMaking, RefusesAnAddressWhileItIsTyped) {
    const char* refusal = "Kinesta opens web pages only: begin the address with http:// or https://.";
    open({rule("Page")});
    program->click("combo box", "Middle mouse click");
    program->click("list item", "Open URL");
    program->await("label", "This rule was switched off.");
    program->click("text", "Address");
    Program::type("ftp");
    program->await("label", refusal);
    Program::type("://example.org");
    Program::press("Home Delete Delete Delete");
    Program::type("https");
    EXPECT_TRUE(program->awaitGone("label", refusal));
    EXPECT_EQ(stored()[0]["isEnabled"], false);
    program->click("push button", "Turn on");
    EXPECT_TRUE(becomesNamed("Page "));
    EXPECT_EQ(stored()[0]["action"]["value"], "https://example.org");
}

TEST_F(RuleMaking, AsksAgainAboutAChangedCommand) {
    const char* again = "The command changed, so it must be confirmed again. Until then the rule stays off.";
    const char* confirmation = "I have read this command and want Kinesta to run it.";
    open({ruleWith("Note", {{"kind", "shellCommand"}, {"value", "true"}, {"shellCommandAcknowledged", true}})});
    program->await("label", "Shell commands are switched off.");
    const auto confirmed = program->await("check box", confirmation);
    EXPECT_TRUE(confirmed.has(Program::checked));
    program->click("text", "Command");
    Program::press("ctrl+End");
    Program::type(" # later");
    program->await("label", again);
    EXPECT_TRUE(program->becomes(confirmed, Program::checked, false));
    EXPECT_TRUE(becomesNamed("Note- "));
    EXPECT_FALSE(program->find("push button", "Turn on"));
    program->click(confirmed);
    EXPECT_TRUE(program->awaitGone("label", again));
    program->click("push button", "Turn on");
    EXPECT_TRUE(becomesNamed("Note "));
    const json action = stored()[0]["action"];
    EXPECT_EQ(action["value"], "true # later");
    EXPECT_EQ(action["shellCommandAcknowledged"], true);
}

}  // namespace
}  // namespace kinesta::testing
