#include "actions/WindowCloseExecutor.h"

#include <gtest/gtest.h>

#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

const std::string kButton = "\n  AXCloseButton: button AXEnabled=yes";

struct WindowCloseExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    bool closes() { return WindowCloseExecutor(desktop.ports()).execute(); }
};

TEST_F(WindowCloseExecutorTest, AsksInOrderAndPressesTheCloseButton) {
    desktop.accessibility.describe(R"(
        AXFocusedWindow: window AXRole=AXWindow AXMinimized=no
          - group AXRole=AXGroup
          AXCloseButton: button AXEnabled=yes
        AXMainWindow: main)");
    EXPECT_TRUE(closes());
    EXPECT_EQ(desktop.log.take(),
              (Calls{"? trusted", "? frontmost", "? application 7", "? timeout 0.5 of application",
                     "? AXFocusedWindow of application", "? AXRole of window", "? AXMinimized of window",
                     "? AXChildren of window", "? AXRole of group", "? AXCloseButton of window",
                     "? AXEnabled of button", "? frontmost", "AXPress button"}));
}

TEST_F(WindowCloseExecutorTest, LeavesAWindowAloneThatIsNotExactlyAsExpectedAndAsksNoFurther) {
    const struct {
        std::string window, last;
    } rows[] = {
        {"" + kButton, "? AXRole of window"},
        {"AXRole=AXDialog" + kButton, "? AXRole of window"},
        {"AXRole=AXWindow AXMinimized=yes" + kButton, "? AXMinimized of window"},
        {"AXRole=AXWindow AXChildren=*" + kButton, "? AXChildren of window"},
        {"AXRole=AXWindow\n  - ?\n  - AXRole=!\n  - sheet AXRole=AXSheet\n  - last" + kButton, "? AXRole of sheet"},
        {"AXRole=AXWindow AXCloseButton=text", "? AXCloseButton of window"},
        {"AXRole=AXWindow\n  AXCloseButton: button AXEnabled=no", "? AXEnabled of button"},
        {"AXRole=AXWindow\n  AXCloseButton: button AXEnabled=1", "? AXEnabled of button"},
    };
    for (const auto& row : rows) {
        desktop.accessibility.describe("AXFocusedWindow: window " + row.window);
        EXPECT_FALSE(closes()) << row.window;
        EXPECT_EQ(desktop.log.take().back(), row.last) << row.window;
    }
}

TEST_F(WindowCloseExecutorTest, TakesWhatCannotBeReadAsHarmlessAndTheMainWindowForTheFocusedOne) {
    for (const std::string window :
         {"AXMinimized=! AXChildren=!", "AXMinimized=*", "AXMinimized=text AXChildren=[]",
          // Only the roles of the window's own children count.
          "\n  - ?\n  - AXRole=*\n  - AXRole=!\n  - group AXRole=AXGroup\n    - AXRole=AXSheet\n  - AXSheet"}) {
        desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow " + window + kButton);
        EXPECT_TRUE(closes()) << window;
    }
    // A timeout that cannot be set is no reason to stop.
    for (const std::string application :
         {"timeout=no", "AXFocusedWindow=!", "AXFocusedWindow=text", "AXFocusedWindow=[]"}) {
        desktop.accessibility.describe("AXMainWindow: AXRole=AXWindow" + kButton, application);
        EXPECT_TRUE(closes()) << application;
    }
    // An application that hangs is waited for as long as the timeout says, for each of the two windows.
    const Uptime before = desktop.clock.uptime();
    desktop.accessibility.describe("AXMainWindow: AXRole=AXWindow" + kButton, "AXFocusedWindow=@9 AXMainWindow=@9");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.clock.uptime() - before, 1.0);
}

TEST_F(WindowCloseExecutorTest, PressesNothingIfTheFrontmostApplicationIsNoLongerTheSame) {
    const struct {
        std::vector<std::optional<ProcessIdentifier>> frontmost;
        Calls effects;
    } rows[] = {{{std::nullopt}, {}},    {{9}, {}},    {{7, 9}, {}},
                {{7, std::nullopt}, {}}, {{7, 1}, {}}, {{7, 7, 9}, {"AXPress button"}}};
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow" + kButton);
    for (const auto& row : rows) {
        desktop.workspace.frontmost = row.frontmost;
        EXPECT_EQ(closes(), !row.effects.empty());
        EXPECT_EQ(desktop.log.takeEffects(), row.effects);
    }
    desktop.workspace.frontmost = {7};
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow" + kButton + " AXPress=no");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.takeEffects(), Calls{"AXPress button"});
    desktop.permission.isGranted = false;
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.take(), Calls{"? trusted"});
}

TEST_F(WindowCloseExecutorTest, ClosesItsOwnWindowUnlessItIsAPanelPutAwayOrBusyWithADialog) {
    const auto none = std::nullopt;
    const struct {
        std::optional<std::string> key, main;
        Calls effects;
    } rows[] = {
        {"key button", "main button", {"close own key button"}},
        {none, "main button", {"close own main button"}},
        {none, none, {}},
        {"key", none, {}},
        {"button miniaturized", none, {}},
        {none, "button sheet", {}},
        // What takes the keys decides: the main window behind a panel stays.
        {"button panel", "main button", {}},
    };
    desktop.workspace.frontmost = {1};
    for (const auto& row : rows) {
        desktop.windows.key = row.key;
        desktop.windows.main = row.main;
        EXPECT_EQ(closes(), !row.effects.empty());
        EXPECT_EQ(desktop.log.takeEffects(), row.effects);
    }
}

}  // namespace
}  // namespace kinesta::testing
