#include <csignal>

#include "desktop/harness/TestWindow.h"
#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct WindowInUse : OpenWindow {};

TEST_F(WindowInUse, StepsAsideForTheKeysOfAnAction) {
    TestWindow other(desktop, {100, 100, 400, 300});
    other.show();
    open({ruleWith("Keys", {{"kind", "keyboardShortcut"}, {"keyCode", 17}, {"modifiers", 9}})});
    // The window comes to the front by itself once there is no tray for sure.
    Program::press("ctrl+1");
    program->await("label", "This desktop shows no status icons.");
    program->click("list item", "Keys");
    for (const bool byButton : {true, false}) {
        desktop.activate(window);
        other.events();
        if (byButton)
            program->click("push button", "Run action now");
        else
            Program::press("ctrl+Return");
        std::string seen;
        EXPECT_TRUE(eventually([&] { return (seen += other.events()).find("KEY_T up") != std::string::npos; })) << seen;
        EXPECT_NE(seen.find("Control+KEY_T down"), std::string::npos) << seen;
        // The window comes back, and that program keeps the keyboard.
        EXPECT_TRUE(eventually([] { return status()["windowVisible"] == true; }));
        program->await("text", "Name");
        EXPECT_EQ(desktop.active(), other.id());
        Program::press("x");
        EXPECT_TRUE(eventually([&] { return (seen += other.events()).find("KEY_X up") != std::string::npos; })) << seen;
    }
}

TEST_F(WindowInUse, KeepsTheNameThatIsTypedWhileAGestureDisablesAllRules) {
    std::vector<json> rules{rule("Name"), rule("All off", "tripleTap", 4)};
    rules[1]["action"]["kind"] = "disableAllRules";
    open(rules);
    openPad();
    const auto name = program->await("text", "Name");
    program->click(name);
    Program::press("ctrl+a");
    Program::type("My words");
    Program::press("Left Left");
    EXPECT_TRUE(becomesNamed("My words All off "));
    tapThreeTimes(4);
    EXPECT_TRUE(becomesNamed("My words- All off- "));
    EXPECT_TRUE(program->becomes(program->await("check box", "On"), Program::checked, false));
    EXPECT_EQ(program->text(name), "My words");
    Program::type("r");
    EXPECT_TRUE(becomesNamed("My worrds- All off- "));
    Program::press("ctrl+z");
    EXPECT_TRUE(eventually([&] { return program->text(name) != "My worrds"; }));
}

TEST_F(WindowInUse, FiltersByKeyAndLeavesTheFilterByEscape) {
    open(everyKind());
    program->click("text", "Name");
    Program::press("ctrl+f");
    EXPECT_TRUE(program->becomes(program->await("text", "Filter gestures"), Program::focused));
    Program::type("volume");
    EXPECT_TRUE(program->awaitGone("list item", "openURL"));
    program->await("list item", "adjustVolume");
    Program::press("Escape");
    program->await("list item", "openURL");
    EXPECT_TRUE(program->becomes(program->await("list", "Gestures"), Program::focused));
    EXPECT_EQ(status()["windowVisible"], true);
}

TEST_F(WindowInUse, EndsWhateverIsOpen) {
    const std::string hint = "Press the keys. Escape cancels, Delete clears.";
    struct Row {
        const char* name;
        std::function<void()> open;
    };
    const Row rows[]{
        {"recorder",
         [&] {
             program->click("list item", "keyboardShortcut");
             program->click("push button", "Record shortcut");
             program->await("label", hint);
         }},
        {"waiting",
         [&] {
             program->click("list item", "keyboardShortcut");
             program->click("push button", "Perform it to choose it");
             program->await("push button", "Stop waiting");
         }},
        {"import",
         [&] {
             Program::press("ctrl+comma");
             program->click("push button", "Import…");
             program->await("dialog", "Import rules");
         }},
        {"application",
         [&] {
             program->click("list item", "launchApplication");
             program->click("push button", "Choose…");
             program->await("dialog", "Choose an application");
         }},
        {"question",
         [&] {
             program->click("list item", "closeWindow");
             Program::press("Delete");
             program->await("label", "Delete “closeWindow”?");
         }},
        {"typing",
         [&] {
             program->click("list item", "closeWindow");
             program->click("text", "Name");
             Program::press("ctrl+a");
             Program::type("last words");
         }},
    };
    import(everyKind());
    for (const auto& [name, open] : rows) {
        SCOPED_TRACE(name);
        launch();
        openPad();
        EXPECT_TRUE(eventually([] { return status()["status"] == "listening"; }));
        open();
        EXPECT_EQ(run("ctl quit"), "0|");
        EXPECT_EQ(exitStatus(*application), "0|");
        pad.close();
        program.reset();
        EXPECT_EQ(stored().size(), everyKind().size());
    }
    EXPECT_EQ(stored()[3]["name"], "last words");
}

}  // namespace
}  // namespace kinesta::testing
