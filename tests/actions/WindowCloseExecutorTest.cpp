#include "actions/WindowCloseExecutor.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

const std::string kButton = "\n  AXCloseButton: button AXEnabled=yes";

struct WindowCloseExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    bool closes() { return WindowCloseExecutor(desktop.ports()).execute(); }
};

TEST_F(WindowCloseExecutorTest, PressesTheCloseButtonAfterAllChecks) {
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

TEST_F(WindowCloseExecutorTest, StopsAtTheFirstUnexpectedAnswer) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"" + kButton, "? AXRole of window"},
        {"AXRole=AXDialog" + kButton, "? AXRole of window"},
        {"AXRole=AXWindow AXMinimized=yes" + kButton, "? AXMinimized of window"},
        {"AXRole=AXWindow AXChildren=*" + kButton, "? AXChildren of window"},
        {"AXRole=AXWindow\n  - ?\n  - AXRole=!\n  - sheet AXRole=AXSheet\n  - last" + kButton, "? AXRole of sheet"},
        {"AXRole=AXWindow AXCloseButton=text", "? AXCloseButton of window"},
        {"AXRole=AXWindow\n  AXCloseButton: button AXEnabled=no", "? AXEnabled of button"},
        {"AXRole=AXWindow\n  AXCloseButton: button AXEnabled=1", "? AXEnabled of button"},
    };
    for (const auto& [window, last] : rows) {
        desktop.accessibility.describe("AXFocusedWindow: window " + window);
        EXPECT_FALSE(closes()) << window;
        EXPECT_EQ(desktop.log.take().back(), last) << window;
    }
}

TEST_F(WindowCloseExecutorTest, IgnoresUnreadableAttributesAndFallsBackToTheMainWindow) {
    for (const std::string window :
         {"AXMinimized=! AXChildren=!", "AXMinimized=*", "AXMinimized=text AXChildren=[]",
          // Only the roles of the window's own children count.
          "\n  - ?\n  - AXRole=*\n  - AXRole=!\n  - group AXRole=AXGroup\n    - AXRole=AXSheet\n  - AXSheet"}) {
        desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow " + window + kButton);
        EXPECT_TRUE(closes()) << window;
    }
    for (const std::string application :
         {"timeout=no", "AXFocusedWindow=!", "AXFocusedWindow=text", "AXFocusedWindow=[]"}) {
        desktop.accessibility.describe("AXMainWindow: AXRole=AXWindow" + kButton, application);
        EXPECT_TRUE(closes()) << application;
    }
    // A hanging application costs the timeout for each of the two windows.
    const Uptime before = desktop.clock.uptime();
    desktop.accessibility.describe("AXMainWindow: AXRole=AXWindow" + kButton, "AXFocusedWindow=@9 AXMainWindow=@9");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.clock.uptime() - before, 1.0);
}

TEST_F(WindowCloseExecutorTest, PressesNothingOnceAnotherApplicationIsInFront) {
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow" + kButton);
    const std::vector<std::vector<std::optional<ProcessIdentifier>>> changes{{std::nullopt},    {9},    {7, 9},
                                                                             {7, std::nullopt}, {7, 1}, {7, 7, 9}};
    for (const auto& frontmost : changes) {
        desktop.frontmost = frontmost;
        const bool isPressed = frontmost.size() == 3;  // changes only after the press
        EXPECT_EQ(closes(), isPressed);
        EXPECT_EQ(desktop.log.takeEffects(), isPressed ? Calls{"AXPress button"} : Calls{});
    }
    desktop.frontmost = {7};
    desktop.accessibility.describe("AXFocusedWindow: AXRole=AXWindow" + kButton + " AXPress=no");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.takeEffects(), Calls{"AXPress button"});
    desktop.isGranted = false;
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.take(), Calls{"? trusted"});
}

TEST_F(WindowCloseExecutorTest, ClosesOwnWindowsButNotPanelsMiniaturizedOrWithASheet) {
    const auto none = std::nullopt;
    const std::vector<std::tuple<std::optional<std::string>, std::optional<std::string>, Calls>> rows{
        {"key button", "main button", {"close own key button"}},
        {none, "main button", {"close own main button"}},
        {none, none, {}},
        {"key", none, {}},
        {"button miniaturized", none, {}},
        {none, "button sheet", {}},
        // The main window behind a panel stays.
        {"button panel", "main button", {}},
    };
    desktop.frontmost = {1};
    for (const auto& [key, main, effects] : rows) {
        desktop.ownKeyWindow = key;
        desktop.ownMainWindow = main;
        EXPECT_EQ(closes(), !effects.empty());
        EXPECT_EQ(desktop.log.takeEffects(), effects);
    }
}

}  // namespace
}  // namespace kinesta::testing
