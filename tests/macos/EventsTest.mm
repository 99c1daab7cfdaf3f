#include <algorithm>

#include "MacActionsTest.h"
#include "actions/ActionExecutor.h"

namespace kinesta {
namespace {

class EventsOnTheMac : public MacActionsTest {
  protected:
    EventsOnTheMac() { desktop.version = 14; }  // without tiling commands, whose keys are posted

    /// What acting calls; the layout apart.
    Calls callsOf(ActionKind kind, std::int64_t steps = 0, std::uint16_t keyCode = 123,
                  ShortcutModifiers modifiers = ShortcutModifiers::control | ShortcutModifiers::function) {
        GestureAction action;
        action.kind = kind;
        action.keyCode = keyCode;
        action.modifiers = modifiers;
        ActionExecutor(ports()).execute(action, steps, false, std::nullopt);
        Calls calls = objc::takeCalls();
        std::erase_if(calls, [](const std::string& call) { return call.find("UCKey") == 0 || call.find("TIS") == 0; });
        return calls;
    }
};

TEST_F(EventsOnTheMac, PostsAStrokeInsideFn) {
    EXPECT_EQ(
        callsOf(ActionKind::keyboardShortcut),
        (Calls{"AXIsProcessTrusted", "CGEventSource#1 = CGEventSourceCreate 1",
               "CGEvent#1 = CGEventCreateKeyboardEvent CGEventSource#1 63 down",
               "CGEvent#2 = CGEventCreateKeyboardEvent CGEventSource#1 123 down",
               "CGEvent#3 = CGEventCreateKeyboardEvent CGEventSource#1 123 up",
               "CGEvent#4 = CGEventCreateKeyboardEvent CGEventSource#1 63 up", "CGEventSetFlags CGEvent#2 10747904",
               "CGEventSetFlags CGEvent#3 10747904", "CGEventPost 0 CGEvent#1", "CGEventPost 0 CGEvent#2",
               "CGEventPost 0 CGEvent#3", "CGEventPost 0 CGEvent#4"}));
}

TEST_F(EventsOnTheMac, ClicksInTheMiddleWhereThePointerIs) {
    EXPECT_EQ(callsOf(ActionKind::middleClick),
              (Calls{"AXIsProcessTrusted", "CGEventSource#1 = CGEventSourceCreate 1",
                     "CGEvent#1 = CGEventCreate CGEventSource#1", "CGEventGetLocation CGEvent#1",
                     "CGEvent#2 = CGEventCreateMouseEvent CGEventSource#1 25 at 640 400.5 button 2",
                     "CGEvent#3 = CGEventCreateMouseEvent CGEventSource#1 26 at 640 400.5 button 2",
                     "CGEventSetIntegerValueField CGEvent#2 1 1", "CGEventSetIntegerValueField CGEvent#3 1 1",
                     "CGEventPost 0 CGEvent#2", "CGEventPost 0 CGEvent#3"}));
}

TEST_F(EventsOnTheMac, PressesVolumeKeysStepByStep) {
    const auto key = [](const std::string& data1) {
        return "NSEvent otherEventWithType:14 location:{0 0} modifierFlags:0 timestamp:1024 windowNumber:0 "
               "context:nil subtype:8 data1:" +
               data1 + " data2:-1";
    };
    EXPECT_EQ(
        callsOf(ActionKind::adjustVolume, 2),
        (Calls{"AXIsProcessTrusted", key("2560"), "CGEventPost 0 CGEvent#1", key("2816"), "CGEventPost 0 CGEvent#2",
               key("2560"), "CGEventPost 0 CGEvent#3", key("2816"), "CGEventPost 0 CGEvent#4"}));
    EXPECT_EQ(callsOf(ActionKind::adjustVolume, -1),
              (Calls{"AXIsProcessTrusted", key("68096"), "CGEventPost 0 CGEvent#5", key("68352"),
                     "CGEventPost 0 CGEvent#6"}));
}

TEST_F(EventsOnTheMac, PostsWhatCouldBeMade) {
    struct Row {
        ActionKind kind;
        const char* failing;
        std::size_t posts;
    };
    using enum ActionKind;
    for (const Row& row : std::initializer_list<Row>{
             {keyboardShortcut, "CGEventSourceCreate", 4},
             {keyboardShortcut, "CGEventCreateKeyboardEvent", 0},
             {keyboardShortcut, "CGEventCreateKeyboardEvent CGEventSource#1 63 down", 3},
             {keyboardShortcut, "CGEventCreateKeyboardEvent CGEventSource#1 123 down", 3},
             {keyboardShortcut, "CGEventCreateKeyboardEvent CGEventSource#1 123 up", 3},
             {keyboardShortcut, "CGEventCreateKeyboardEvent CGEventSource#1 63 up", 3},
             {middleClick, "CGEventSourceCreate", 2},
             {middleClick, "CGEventCreate ", 0},
             {middleClick, "CGEventCreateMouseEvent CGEventSource#1 25", 1},
             {middleClick, "CGEventCreateMouseEvent CGEventSource#1 26", 1},
             {adjustVolume, "NSEvent otherEvent", 0},
             {adjustVolume, "NSEvent CGEvent", 0},
         }) {
        becomeAsAfterLogin();
        fakes::makeFail(row.failing);
        const Calls calls = callsOf(row.kind, 1);
        EXPECT_EQ(std::ranges::count_if(calls, [](const auto& call) { return call.starts_with("CGEventPost"); }),
                  row.posts)
            << row.failing;
        EXPECT_EQ(std::ranges::count(calls, "CGEventPost 0 nil"), 0) << row.failing;
    }
}

TEST_F(EventsOnTheMac, PromptsAndPostsNothingWithoutPermission) {
    fakes::setTrusted(false);
    const Calls prompt{"AXIsProcessTrusted", "AXIsProcessTrustedWithOptions YES"};
    for (const ActionKind kind : {ActionKind::keyboardShortcut, ActionKind::middleClick, ActionKind::adjustVolume})
        EXPECT_EQ(callsOf(kind, 1), prompt);
    EXPECT_EQ(callsOf(ActionKind::closeWindow), prompt);
    EXPECT_FALSE(permission.prompt());
    fakes::makeFail("CFDictionaryCreate");
    fakes::setTrusted(true);
    EXPECT_TRUE(permission.prompt());
}

}  // namespace
}  // namespace kinesta
