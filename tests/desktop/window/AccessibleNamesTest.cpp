#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct AccessibleNames : OpenWindow {
    struct Row {
        std::string role, name;
        std::string description{};
        /// The tiles or segments of a group.
        std::string choices{};
        double value = 0;
    };

    void expect(const std::string& screen, const std::vector<Row>& rows) const {
        SCOPED_TRACE(screen);
        for (const Row& row : rows) {
            SCOPED_TRACE(row.role + " " + row.name);
            const auto node =
                row.role == "combo box" ? program->awaitCombo(row.name) : program->await(row.role, row.name);
            EXPECT_TRUE(row.description.empty() || program->description(node) == row.description)
                << program->description(node);
            EXPECT_TRUE(row.value == 0 || program->value(node) == row.value) << program->value(node);
            std::string choices;
            if (row.role == "panel")
                for (const auto& choice : program->children(node))
                    if (choice.role == "radio button" && choice.has(Program::showing))
                        choices += (choices.empty() ? "" : ", ") + choice.name;
            EXPECT_EQ(choices, row.choices);
        }
    }
};

TEST_F(AccessibleNames, StayAsScreenReadersKnowThem) {
    auto rules = everyKind();
    rules[2]["name"] = "";
    rules[3]["fingerCount"] = 5;
    open(rules);
    expect("sidebar", {{"push button", "Overview"},
                       {"push button", "Add gesture"},
                       {"push button", "More"},
                       {"text", "Filter gestures"},
                       {"list", "Gestures"},
                       {"list item", "unconfigured",
                        "No gesture · No action. Choose a gesture and an action to switch this rule on."},
                       {"list item", "Untitled gesture", "3-finger double click · Middle click"},
                       {"push button", "Settings"}});
    expect("unconfigured",
           {{"text", "Name"},
            {"check box", "On"},
            {"panel", "Gesture type", "",
             "Tap, Physical click (any pressure), Soft click (stage 1), Force Click (stage 2), Tip-tap left, Tip-tap "
             "right, Vertical edge slide, Corner hold and draw (prototype)"},
            {"combo box", "What happens", "Choose what the gesture does."},
            {"push button", "Run action now"}});
    const std::map<std::string, std::vector<Row>> editors{
        {"keyboardShortcut",
         {{"graphic", "Tap", "Touch with three fingers together and lift."},
          {"panel", "Repetition", "", "Single, Double, Triple"},
          {"panel", "Fingers", "", "2, 3, 4, 5"},
          {"check box", "Show a cue"},
          {"text", "Cue text"},
          {"push button", "Record shortcut", "Shift+Ctrl+T"},
          {"button menu", "Common shortcuts"},
          {"button menu", "Other keys"}}},
        {"openURL", {{"text", "Address"}}},
        {"openFileOrFolder", {{"text", "Path"}, {"button menu", "Choose…"}}},
        {"launchApplication",
         {{"push button", "Choose…"}, {"list", "Arguments"}, {"list item", "--one"}, {"push button", "Add argument"}}},
        {"shellCommand",
         {{"panel", "Corner", "", "Top left, Top right, Bottom left, Bottom right"},
          {"panel", "Pattern", "",
           "Line up, Line down, Line left, Line right, L — down, then right, V — left to right, Zigzag — left to "
           "right, "
           "Clockwise circle, Counterclockwise circle"},
          {"text", "Command"},
          {"check box", "I have read this command and want Kinesta to run it."}}},
        {"adjustVolume", {{"panel", "Side", "", "Left, Right, Both"}, {"combo box", "What happens"}}},
    };
    for (const auto& [name, rows] : editors) {
        program->click("list item", name);
        EXPECT_TRUE(eventually([&, &rule = name] { return program->text(program->await("text", "Name")) == rule; }));
        expect(name, rows);
    }
    Program::press("ctrl+1");
    expect("overview",
           {{"check box", "Gesture recognition"}, {"push button", "Try a gesture"}, {"push button", "Copy report"}});
    Program::press("ctrl+comma");
    expect("settings", {{"check box", "Gesture recognition"},
                        {"panel", "Tap waiting interval", "", "150 ms, 200 ms, 250 ms, 300 ms, 400 ms"},
                        {"check box", "Ignore touches that start in a corner"},
                        {"slider", "Size of the corners", "50 %", "", 50},
                        {"push button", "Preview"},
                        {"panel", "Position", "", "Center, Top right, Bottom right"},
                        {"slider", "Duration", "1.5 s", "", 15},
                        {"slider", "Background", "62 %", "", 62},
                        {"check box", "Let rules run shell commands"},
                        {"panel", "Appearance", "", "System, Light, Dark"},
                        {"check box", "Launch at login"},
                        {"push button", "Check now"},
                        {"check box", "Check for updates by itself"},
                        {"push button", "Import…"},
                        {"push button", "Export…"},
                        {"push button", "Reset…"},
                        {"push button", "About…"}});
    Program::press("ctrl+t");
    expect("sheet", {{"dialog", "Try a gesture"},
                     {"label", "Try a gesture and check what Kinesta detects."},
                     {"label", "Actions are paused while this window is open."},
                     {"push button", "Done"}});
    Program::press("Escape");
    EXPECT_TRUE(program->awaitGone("dialog", "Try a gesture"));
    program->click("list item", "Untitled gesture");
    Program::press("Delete");
    expect("question", {{"label", "Delete “Untitled gesture”?"},
                        {"label", "This action cannot be undone."},
                        {"push button", "Cancel"},
                        {"push button", "Delete"}});
    Program::press("Escape");
}

}  // namespace
}  // namespace kinesta::testing
