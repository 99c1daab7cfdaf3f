#include <limits>

#include "MacActionsTest.h"
#include "actions/WindowCloseExecutor.h"
#include "actions/WindowTilingExecutor.h"

namespace kinesta {
namespace {

class AccessibilityOnTheMac : public MacActionsTest {
  protected:
    bool closes(const std::string& tree) {
        desktop.accessibility.describe(tree);
        return WindowCloseExecutor(ports()).execute();
    }
    bool tilesLeft(const std::string& tree) {
        desktop.accessibility.describe("AXMenuBar: bar " + tree);
        return WindowTilingExecutor(ports()).execute(WindowTilingMenuCommand::left);
    }
    AccessibilityElementHandle application(const std::string& words) {
        desktop.accessibility.describe("", words);
        return elements.applicationElement(7);
    }
};

const std::string kWindow = "AXFocusedWindow: window AXRole=AXWindow AXMinimized=no\n";
const std::string kButton = "  AXCloseButton: button AXEnabled=yes\n";

TEST_F(AccessibilityOnTheMac, ClosesAWindow) {
    EXPECT_TRUE(closes(kWindow + "  - group AXRole=AXGroup\n  - ?\n  - ?\n" + kButton));
    EXPECT_EQ(
        desktop.log.take(),
        (Calls{"? frontmost", "? application 7", "? timeout 0.5 of application", "? AXFocusedWindow of application",
               "? AXRole of window", "? AXMinimized of window", "? AXChildren of window", "? AXRole of group",
               "? AXCloseButton of window", "? AXEnabled of button", "? frontmost", "AXPress button"}));
    EXPECT_EQ(objc::takeCalls(), Calls{"AXIsProcessTrusted"});
}

TEST_F(AccessibilityOnTheMac, LeavesAWindowAloneWhenAnAnswerIsOfAnotherType) {
    for (const std::string& tree :
         {std::string("AXFocusedWindow=AXWindow"), "AXFocusedWindow: window AXRole=*\n" + kButton,
          "AXFocusedWindow: window AXRole=yes\n" + kButton,
          "AXFocusedWindow: window AXRole=AXWindow AXChildren=*\n" + kButton,
          kWindow + "  - sheet AXRole=AXSheet\n" + kButton, kWindow + "  AXCloseButton: button AXEnabled=*",
          kWindow + "  AXCloseButton: button AXEnabled=1", kWindow}) {
        EXPECT_FALSE(closes(tree)) << tree;
        EXPECT_EQ(desktop.log.takeEffects(), Calls{}) << tree;
    }
    EXPECT_FALSE(closes(kWindow + "  AXCloseButton: button AXEnabled=yes AXPress=no"));
}

TEST_F(AccessibilityOnTheMac, SurvivesEveryCallThatGivesNothing) {
    const auto read = [&](const char* failing) {
        becomeAsAfterLogin();
        const auto element = application("AXRole=AXWindow");
        fakes::makeFail(failing);
        EXPECT_EQ(element->performAction("AXPress"), std::string(failing) != "CFStringCreateWithCString");
        return element->copyAttribute("AXRole");
    };
    for (const char* const failing : {"CFStringCreateWithCString", "AXUIElementCopyAttributeValue"})
        EXPECT_TRUE(std::holds_alternative<AccessibilityFailure>(read(failing))) << failing;
    for (const char* const failing : {"CFStringGetCString", "CFStringGetMaximumSizeForEncoding"})
        EXPECT_TRUE(std::holds_alternative<OtherAccessibilityValue>(read(failing))) << failing;
    fakes::makeFail("AXUIElementCreateApplication");
    EXPECT_EQ(elements.applicationElement(7), nullptr);
}

TEST_F(AccessibilityOnTheMac, AsksNobodyForWhatCannotBeAProcess) {
    for (const ProcessIdentifier invalid : {0L, -7L, (1L << 32) + 7})
        EXPECT_EQ(elements.applicationElement(invalid), nullptr) << invalid;
    EXPECT_EQ(desktop.log.take(), Calls{});
}

TEST_F(AccessibilityOnTheMac, ReadsTextsInAllLanguages) {
    const auto element = application("AXIdentifier=Größe_窗😀");
    EXPECT_EQ(std::get<std::string>(element->copyAttribute("AXIdentifier")), "Größe_窗😀");
    EXPECT_TRUE(std::holds_alternative<AccessibilityFailure>(element->copyAttribute("AXRole")));
}

TEST_F(AccessibilityOnTheMac, NeverAsksForTheLongTimeoutOfTheSystem) {
    const auto element = application("");
    desktop.log.take();
    for (const Seconds timeout : {0.0, -1.0, 1e-60, std::numeric_limits<Seconds>::quiet_NaN()})
        EXPECT_FALSE(element->setMessagingTimeout(timeout));
    EXPECT_EQ(desktop.log.take(), Calls{});
    EXPECT_TRUE(element->setMessagingTimeout(0.01));
    EXPECT_FALSE(application("timeout=no")->setMessagingTimeout(0.01));
}

TEST_F(AccessibilityOnTheMac, SpendsNoMoreOnASearchThanItMay) {
    struct Row {
        std::string tree;
        bool tiles;
        Seconds cost;
    };
    std::string slow, wide, wider;
    for (int i = 0; i < 9; ++i)
        slow += "\n - menu AXIdentifier=other@0.0625 AXChildren=[]";
    for (int i = 0; i < 998; ++i)
        wide += "\n - menu AXChildren=[]";
    const std::string item = "\n - item AXIdentifier=_zoomLeft: AXEnabled=yes";
    wider = wide + "\n - menu" + item;
    for (const Row& row : std::initializer_list<Row>{
             {"AXChildren=[]@9", false, 0.15},  // hangs
             {slow + item, false, 0.5},
             {"\n - menu AXIdentifier=other@9 AXChildren=[]" + item, true, 0.15},
             {wide + item, true, 0},
             {wider, false, 0},
         }) {
        const Seconds start = desktop.clock.uptime();
        EXPECT_EQ(tilesLeft(row.tree), row.tiles) << row.tree.substr(0, 60);
        EXPECT_NEAR(desktop.clock.uptime() - start, row.cost, 1e-6) << row.tree.substr(0, 60);
    }
}

}  // namespace
}  // namespace kinesta
