#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"
#include "rules/CommonMacShortcut.h"
#include "support/FakeActionDesktop.h"

namespace kinesta::testing {
namespace {

const std::string kItem = "- item AXIdentifier=_zoomLeft: ";
const std::string kEnabledItem = kItem + "AXEnabled=yes";

const std::string kWindow = "AXFocusedWindow: AXRole=AXWindow ";
const std::string kButton = "\n  AXCloseButton: button AXEnabled=yes";

/// Another application comes to the front before or after the first question, or none is.
const std::vector<std::optional<ProcessIdentifier>> kChangesOfFrontmost[] = {
    {std::nullopt}, {9}, {7, 9}, {7, std::nullopt}, {7, 1}};

struct WindowCloseExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;
    bool closes() { return WindowCloseExecutor(desktop.ports()).execute(); }
};

struct WindowTilingExecutorTest : ::testing::Test {
    FakeActionDesktop desktop;

    bool tilesLeft() { return WindowTilingExecutor(desktop.ports()).execute(WindowTilingMenuCommand::left); }
    bool tilesLeft(const std::string& tree, const std::string& application = "") {
        desktop.accessibility.describe("AXMenuBar: bar " + tree, application);
        desktop.log.take();
        return tilesLeft();
    }
    std::ptrdiff_t countedCalls(const std::string& call) {
        const Calls calls = desktop.log.take();
        return std::count(calls.begin(), calls.end(), call);
    }
};

std::string repeated(int count, const std::string& text) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

/// `text` below `levels` nested menus.
std::string nested(int levels, const std::string& text) {
    std::string result;
    for (int level = 1; level <= levels; ++level)
        result += '\n' + repeated(level, " ") + "- menu";
    return result + '\n' + repeated(levels + 1, " ") + text;
}

TEST(WindowTilingMenuCommand, HasTheKeysOfItsPreset) {
    std::string identifiers;
    for (const CommonMacShortcut& preset : CommonMacShortcut::all())
        if (const auto command = windowTilingMenuCommand(preset.keyCode, preset.modifiers)) {
            EXPECT_EQ(preset.category, "Window Tiling");
            identifiers.append(rawValue(*command)).append(" ");
        }
    EXPECT_EQ(identifiers,
              "_zoomFill: _zoomCenter: _zoomLeft: _zoomRight: _zoomTop: _zoomBottom: _zoomUntile: _zoomLeftAndRight: "
              "_zoomRightAndLeft: _zoomTopAndBottom: _zoomBottomAndTop: _zoomLeftThreeUp: _zoomRightThreeUp: "
              "_zoomTopThreeUp: _zoomBottomThreeUp: ");
    EXPECT_EQ(windowTilingMenuCommand(123, {20 + 1}), std::nullopt) << "with command added";
}

TEST_F(WindowTilingExecutorTest, SearchesDepthFirstAndPressesTheFirstMatch) {
    EXPECT_TRUE(tilesLeft(R"(
          - file
            - save AXIdentifier=_zoomLef:
          - ?
          - window AXIdentifier=*
            - item AXIdentifier=_zoomLeft: AXEnabled=yes
              - never
          - second AXIdentifier=_zoomLeft: AXEnabled=yes)"));
    Calls calls = desktop.log.take();
    std::erase_if(calls, [](const std::string& call) { return call.starts_with("? timeout 0.15 of "); });
    EXPECT_EQ(calls, (Calls{"? frontmost", "? trusted", "? application 7", "? AXMenuBar of application",
                            "? AXIdentifier of bar", "? AXChildren of bar", "? AXIdentifier of file",
                            "? AXChildren of file", "? AXIdentifier of save", "? AXChildren of save",
                            "? AXIdentifier of window", "? AXChildren of window", "? AXIdentifier of item",
                            "? AXEnabled of item", "? frontmost", "AXPress item"}));
    EXPECT_TRUE(tilesLeft("AXIdentifier=_zoomLeft: AXEnabled=yes"));
}

TEST_F(WindowTilingExecutorTest, StopsAtTheFirstUnexpectedAnswer) {
    const std::string enabled = "\n " + kEnabledItem, item = "\n " + kItem;
    for (const std::string& tree : {item, item + "AXEnabled=no", item + "AXEnabled=1", item + "AXEnabled=!",
                                    std::string("AXChildren=*"), std::string("AXChildren=[]"), "timeout=no" + enabled,
                                    item + enabled /* a disabled first match hides a second one */}) {
        EXPECT_FALSE(tilesLeft(tree)) << tree;
        EXPECT_EQ(desktop.log.takeEffects(), Calls{}) << tree;
    }
    EXPECT_FALSE(tilesLeft(enabled, "timeout=no"));
    EXPECT_FALSE(tilesLeft(enabled + " AXPress=no"));
    EXPECT_EQ(desktop.log.takeEffects(), Calls{"AXPress item"});
    for (const std::string application : {"", "AXMenuBar=text", "AXMenuBar=!"}) {
        desktop.accessibility.describe("", application);
        EXPECT_FALSE(tilesLeft()) << application;
    }
}

TEST_F(WindowTilingExecutorTest, ChecksVersionThenApplicationThenPermission) {
    desktop.version = 14;
    EXPECT_FALSE(tilesLeft("\n " + kEnabledItem));
    EXPECT_EQ(desktop.log.take(), Calls{});
    desktop.version = 26;
    EXPECT_TRUE(tilesLeft());
    desktop.log.take();
    for (const auto& frontmost : kChangesOfFrontmost) {
        desktop.frontmost = frontmost;
        EXPECT_FALSE(tilesLeft());
        EXPECT_EQ(desktop.log.takeEffects(), Calls{});
    }
    desktop.frontmost = {7};
    desktop.isGranted = false;
    EXPECT_FALSE(tilesLeft());
    EXPECT_EQ(desktop.log.take(), (Calls{"? frontmost", "? trusted"}));
}

TEST_F(WindowTilingExecutorTest, VisitsTwelveLevelsAndAThousandElements) {
    EXPECT_TRUE(tilesLeft(nested(11, kEnabledItem)));
    EXPECT_FALSE(tilesLeft(nested(12, kEnabledItem)));
    EXPECT_EQ(countedCalls("? AXIdentifier of menu"), 12);
    // The menu bar and the item count as well.
    EXPECT_TRUE(tilesLeft(repeated(998, "\n -") + "\n " + kEnabledItem));
    EXPECT_FALSE(tilesLeft(repeated(999, "\n -") + "\n " + kEnabledItem));
    EXPECT_EQ(countedCalls("? AXIdentifier of -"), 999);
    // The whole tree shares one budget.
    EXPECT_FALSE(tilesLeft(repeated(100, "\n -" + repeated(9, "\n  -")) + "\n " + kEnabledItem));
    EXPECT_EQ(countedCalls("? AXIdentifier of -"), 999);
}

TEST_F(WindowTilingExecutorTest, LimitsEachRequestToTheRemainingTime) {
    EXPECT_TRUE(
        tilesLeft("AXIdentifier=x@0.125\n - first AXIdentifier=x@0.125 AXChildren=[]@0.125"
                  "\n - item AXIdentifier=_zoomLeft:@0.0625 AXEnabled=yes@0.03125"));
    Calls timeouts = desktop.log.take();
    std::erase_if(timeouts, [](const std::string& call) { return !call.starts_with("? timeout"); });
    EXPECT_EQ(timeouts, (Calls{"? timeout 0.15 of application", "? timeout 0.15 of bar", "? timeout 0.15 of bar",
                               "? timeout 0.15 of first", "? timeout 0.15 of first", "? timeout 0.125 of item",
                               "? timeout 0.0625 of item", "? timeout 0.03125 of item"}));
}

TEST_F(WindowTilingExecutorTest, StopsAtTheDeadline) {
    const std::string slow = "AXIdentifier=x@0.125 AXChildren=@0.125\n - item ";  // 0.25 s
    const std::vector<std::pair<std::string, std::string>> rows{
        // During the search, before the enabled state, before the press, and just in time.
        {"AXIdentifier=x@0.125 AXChildren=[]", "? AXIdentifier of item"},
        {"AXIdentifier=_zoomLeft:@0.125 AXEnabled=yes", "? AXIdentifier of item"},
        {"AXIdentifier=_zoomLeft:@0.0625 AXEnabled=yes@0.0625", "? frontmost"},
        {"AXIdentifier=_zoomLeft:@0.0625 AXEnabled=yes@0.0615", "AXPress item"},
    };
    for (const auto& [item, last] : rows) {
        EXPECT_EQ(tilesLeft(slow + item, "AXMenuBar=@0.125"), last == "AXPress item") << item;
        EXPECT_EQ(desktop.log.take().back(), last) << item;
    }
    // A hanging application costs at most the budget.
    const Uptime before = desktop.clock.uptime();
    EXPECT_FALSE(tilesLeft(repeated(50, "\n - AXIdentifier=@9 AXChildren=@9"), "AXMenuBar=@0.125"));
    EXPECT_EQ(desktop.clock.uptime() - before, 0.5);
}

TEST_F(WindowTilingExecutorTest, SendsOwnMenuItemsWithoutPermission) {
    desktop.frontmost = {1};
    desktop.isGranted = false;
    EXPECT_FALSE(tilesLeft());
    for (const auto& [bar, isTiled, effects] : std::vector<std::tuple<std::string, bool, std::string>>{
             {"", false, ""},
             {"- a\n - b action=_zoomRight:\n- c\n - d identifier=_zoomLeft: action=x\n- action=_zoomLeft:", true,
              "send x"},
             {"- a\n - b\n  - action=_zoomLeft:\n- identifier=_zoomLeft: action=x", true, "send _zoomLeft:"},
             {"- a identifier=_zoomLeft: action=x enabled=no\n- action=_zoomLeft:", false, ""},
             {"- a identifier=_zoomLeft:\n- action=_zoomLeft:", false, ""},
             {"- a action=_zoomLeft: taken=no", false, "send _zoomLeft:"},
             // Enabled only after the menu was updated.
             {"- a action=_zoomLeft: enabled=updated", true, "send _zoomLeft:"}}) {
        desktop.menus.bar = FakeNode::parse(bar);
        EXPECT_EQ(tilesLeft(), isTiled) << bar;
        EXPECT_EQ(joined(desktop.log.takeEffects()), effects) << bar;
    }
    for (const int depth : {12, 13}) {
        desktop.menus.bar = FakeNode::parse(nested(depth, "- action=_zoomLeft:"));
        EXPECT_EQ(tilesLeft(), depth == 12);
        EXPECT_EQ(countedCalls("? update menu"), 13);
    }
}

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
    const std::string main = "AXMainWindow: AXRole=AXWindow" + kButton;
    // Only the roles of the window's own children count.
    const std::string children =
        "\n  - ?\n  - AXRole=*\n  - AXRole=!\n  - group AXRole=AXGroup\n    - AXRole=AXSheet\n  - AXSheet";
    for (const auto& [window, application] :
         std::vector<std::pair<std::string, std::string>>{{kWindow + "AXMinimized=! AXChildren=!" + kButton, ""},
                                                          {kWindow + "AXMinimized=*" + kButton, ""},
                                                          {kWindow + "AXMinimized=text AXChildren=[]" + kButton, ""},
                                                          {kWindow + children + kButton, ""},
                                                          {main, "timeout=no"},
                                                          {main, "AXFocusedWindow=!"},
                                                          {main, "AXFocusedWindow=text"},
                                                          {main, "AXFocusedWindow=[]"}}) {
        desktop.accessibility.describe(window, application);
        EXPECT_TRUE(closes()) << window << application;
    }
    // A hanging application costs the timeout for each of the two windows.
    const Uptime before = desktop.clock.uptime();
    desktop.accessibility.describe(main, "AXFocusedWindow=@9 AXMainWindow=@9");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.clock.uptime() - before, 1.0);
}

TEST_F(WindowCloseExecutorTest, PressesNothingOnceAnotherApplicationIsInFront) {
    desktop.accessibility.describe(kWindow + kButton);
    for (const auto& frontmost : kChangesOfFrontmost) {
        desktop.frontmost = frontmost;
        EXPECT_FALSE(closes());
        EXPECT_EQ(desktop.log.takeEffects(), Calls{});
    }
    desktop.frontmost = {7, 7, 9};  // changes only after the press
    EXPECT_TRUE(closes());
    desktop.frontmost = {7};
    desktop.accessibility.describe(kWindow + kButton + " AXPress=no");
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.takeEffects(), (Calls{"AXPress button", "AXPress button"}));
    desktop.isGranted = false;
    EXPECT_FALSE(closes());
    EXPECT_EQ(desktop.log.take(), Calls{"? trusted"});
}

TEST_F(WindowCloseExecutorTest, ClosesOwnWindowsButNotPanelsMiniaturizedOrWithASheet) {
    const auto none = std::nullopt;
    using Window = std::optional<std::string>;
    desktop.frontmost = {1};
    for (const auto& [key, main, effects] :
         std::vector<std::tuple<Window, Window, std::string>>{{"key button", "main button", "close own key button"},
                                                              {none, "main button", "close own main button"},
                                                              {none, none, ""},
                                                              {"key", none, ""},
                                                              {"button miniaturized", none, ""},
                                                              {none, "button sheet", ""},
                                                              // The main window behind a panel stays.
                                                              {"button panel", "main button", ""}}) {
        desktop.ownKeyWindow = key;
        desktop.ownMainWindow = main;
        EXPECT_EQ(closes(), !effects.empty());
        EXPECT_EQ(joined(desktop.log.takeEffects()), effects);
    }
}

}  // namespace
}  // namespace kinesta::testing
