#include "desktop/window/OpenWindow.h"

namespace kinesta::testing {
namespace {

struct RuleList : OpenWindow {
    void openFour() {
        open({rule("One"), rule("Two", "doubleTap"), rule("Three", "tripleTap"), rule("Four", "singleTap", 4)});
    }
};

TEST_F(RuleList, IsReorderedByDragAndByKeys) {
    openFour();
    const auto [x, y] = program->middle(program->await("list item", "Three"));
    const std::string below = std::to_string(x) + " " + std::to_string(y + 15);
    program->handAt(program->await("list item", "One"),
                    "mousedown 1 mousemove_relative 0 40 mousemove " + below + " mouseup 1");
    EXPECT_TRUE(becomesNamed("Two Three One Four "));
    Program::press("alt+Up");
    EXPECT_TRUE(becomesNamed("Two One Three Four "));
    Program::press("alt+Down alt+Down alt+Down");
    EXPECT_TRUE(becomesNamed("Two Three Four One "));
    Program::press("ctrl+z ctrl+z ctrl+z");
    EXPECT_TRUE(becomesNamed("Two Three One Four "));
    Program::press("ctrl+z");
    program->await("label", "Order restored");
    EXPECT_TRUE(becomesNamed("One Two Three Four "));
    Program::press("ctrl+shift+z");
    EXPECT_TRUE(becomesNamed("Two Three One Four "));
}

TEST_F(RuleList, DeletesSeveralAfterTheQuestion) {
    openFour();
    program->click("list item", "Two");
    Program::press("shift+Down Delete");
    program->await("label", "Delete 2 gestures?");
    program->await("label", "This action cannot be undone.");
    Program::press("Escape");
    EXPECT_TRUE(program->awaitGone("label", "Delete 2 gestures?"));
    EXPECT_EQ(names(), "One Two Three Four ");
    Program::press("Delete");
    program->click("push button", "Delete");
    EXPECT_TRUE(becomesNamed("One Four "));
    EXPECT_TRUE(program->becomes(program->await("list item", "Four"), Program::selected));
    EXPECT_EQ(program->text(program->await("text", "Name")), "Four");
    ASSERT_TRUE(eventually([&] { return program->focus().value_or(Program::Node{}).role == "list"; }));
    Program::press("Delete");
    program->await("label", "Delete “Four”?");
    Program::press("Return");  // Cancel is the default
    EXPECT_TRUE(program->awaitGone("label", "Delete “Four”?"));
    EXPECT_EQ(names(), "One Four ");
}

TEST_F(RuleList, TakesBackEditsAndSwitches) {
    openFour();
    const auto name = program->await("text", "Name");
    program->click("check box", "On");
    EXPECT_TRUE(becomesNamed("One- Two Three Four "));
    program->click(name);
    Program::press("ctrl+a");
    Program::type("Uno");
    EXPECT_TRUE(becomesNamed("Uno- Two Three Four "));
    Program::press("ctrl+z");  // a step of the field
    EXPECT_TRUE(becomesNamed("One- Two Three Four "));
    Program::press("ctrl+shift+z");
    EXPECT_TRUE(becomesNamed("Uno- Two Three Four "));
    Program::press("Tab ctrl+z ctrl+z");
    EXPECT_TRUE(becomesNamed("One Two Three Four "));
    EXPECT_EQ(program->text(name), "One");
    EXPECT_TRUE(program->becomes(program->await("check box", "On"), Program::checked));
    Program::press("ctrl+shift+z ctrl+shift+z");
    EXPECT_TRUE(becomesNamed("Uno- Two Three Four "));
}

TEST_F(RuleList, FollowsOtherProcessesWithoutDisturbingWhoTypes) {
    const std::vector<json> rules{rule("One"), rule("Two", "doubleTap")};
    open(rules);
    const auto name = program->await("text", "Name");
    program->click(name);
    Program::press("ctrl+a");
    Program::type("Mine");
    EXPECT_TRUE(becomesNamed("Mine Two "));
    std::vector<json> changed{rules[1], rules[0], rule("New", "tripleTap")};
    changed[1]["name"] = "Theirs";
    import(changed);
    program->await("list item", "New");
    EXPECT_EQ(program->text(name), "Mine");
    Program::type("!");
    EXPECT_TRUE(becomesNamed("Two Mine! New "));

    import({changed[0]});
    EXPECT_TRUE(program->awaitGone("text", "Name"));
    program->await("push button", "Try a gesture");
    EXPECT_EQ(names(), "Two ");
}

TEST_F(RuleList, KeepsEveryLetterWhenItIsKilled) {
    open({rule("One")});
    program->click("text", "Name");
    Program::press("ctrl+a");
    Program::type("Typed to the end");
    program->await("list item", "Typed to the end");
    EXPECT_EQ(kill(processOf(), SIGKILL), 0);
    application->waitForEnd();
    EXPECT_EQ(names(), "Typed to the end ");
}

}  // namespace
}  // namespace kinesta::testing
