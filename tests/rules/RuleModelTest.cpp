#include <gtest/gtest.h>

#include <set>

#include "RuleMaking.h"

namespace kinesta {
namespace {

GestureAction makeAction(ActionKind kind, std::string value = {}) {
    GestureAction action;
    action.kind = kind;
    action.value = std::move(value);
    return action;
}

TEST(Uuid, IsRandomAndParsesEitherCaseAndNothingElse) {
    std::set<Uuid> seen;
    for (int i = 0; i < 100; ++i) {
        const Uuid id = Uuid::random();
        const std::string text = id.toString();
        EXPECT_TRUE(text[14] == '4' && std::string("89AB").find(text[19]) != std::string::npos) << text;
        EXPECT_TRUE(Uuid::parse(text) == id && seen.insert(id).second) << text;
    }
    const std::string text = "0123ABCD-EF45-6789-abcd-ef0123456789";
    EXPECT_EQ(Uuid::parse(text).value().toString(), "0123ABCD-EF45-6789-ABCD-EF0123456789");
    for (const std::string& wrong : {std::string(), text + "0", text.substr(1), "{" + text.substr(1, 34) + "}"})
        EXPECT_EQ(Uuid::parse(wrong), std::nullopt) << wrong;
    for (std::size_t i = 0; i < text.size(); ++i)
        for (const char wrong : {text[i] == '-' ? '0' : '-', 'g', 'G', '\0', '`', '@', '/', ':'})
            EXPECT_EQ(Uuid::parse(std::string(text).replace(i, 1, 1, wrong)), std::nullopt) << wrong << " at " << i;
}

TEST(GestureAction, IsConfiguredWhenItsKindHasWhatItNeeds) {
    const auto configuredKinds = [](std::optional<std::uint16_t> key, const std::string& value, bool acknowledged) {
        std::string kinds;
        for (const ActionKind kind : allCases<ActionKind>())
            if (GestureAction{kind, key, {}, value, {}, {}, acknowledged}.isConfigured())
                kinds.append(rawValue(kind)).append(" ");
        return kinds;
    };
    const std::string always = "middleClick closeWindow ";
    const std::string own = "toggleConfigurationWindow disableAllRules adjustVolume ";
    const std::string valued = always + "openURL openFileOrFolder launchApplication ";
    EXPECT_EQ(configuredKinds(std::nullopt, " \t\n\u00A0\u2028", true), always + own);
    EXPECT_EQ(configuredKinds(0, "", false), "keyboardShortcut " + always + own);
    EXPECT_EQ(configuredKinds(std::nullopt, " ls\n", false), valued + own);
    EXPECT_EQ(configuredKinds(std::nullopt, " ls\n", true), valued + "shellCommand " + own);
    EXPECT_FALSE(makeAction(ActionKind::shellCommand, "ls").isConfigured()) << "acknowledgement empty";
}

TEST(GestureAction, SummarizesWhatItDoes) {
    std::string fixed;
    for (const ActionKind kind : allCases<ActionKind>())
        fixed += makeAction(kind).summary() + "|";
    EXPECT_EQ(fixed,
              "No action|Not configured|Middle click|Close window|Not configured|Not configured|Not configured|"
              "Not configured|Show or hide Kinesta|Disable every rule|Slide up/down to adjust volume|");
    EXPECT_EQ(makeAction(ActionKind::launchApplication, "   ").summary(), "   ");
    GestureAction shortcut = makeAction(ActionKind::keyboardShortcut, "ignored");
    shortcut.keyCode = 0;
    shortcut.modifiers = ShortcutModifiers::shift | ShortcutModifiers::command;
    EXPECT_EQ(shortcut.summary(), "⇧⌘A");
}

TEST(GestureAction, LabelsAShortcutByPresetThenCustomLabelThenKeys) {
    constexpr auto shortcut = ActionKind::keyboardShortcut;
    for (const auto& [action, label] : std::vector<std::pair<GestureAction, std::optional<std::string>>>{
             {{shortcut, {}, {}, "", {}, " Mine\n", {}}, std::nullopt},
             {{shortcut, 9, {}, "", {}, " Mine\n", {}}, "Mine"},
             {{shortcut, 9, ShortcutModifiers::command, "", {}, " Mine\n", {}}, "Paste"},
             {{shortcut, 9, ShortcutModifiers::option, "", {}, " \n", {}}, "⌥V"},
             {{ActionKind::middleClick, 9, {}, "", {}, " Mine\n", {}}, std::nullopt}})
        EXPECT_EQ(action.keyboardCueLabel(), label);
}

TEST(GestureRule, ResolvesTheCueMessageFromLabelThenName) {
    GestureRule rule = makeRule(GestureKind::singleTap, 3);
    rule.name = "\u3000 \t";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), std::nullopt);
    rule.name = " Name of it ";
    rule.action.customCueLabel = "\n";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), "Name of it");
    rule.action.customCueLabel = "\nLabel ";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), "Label");
}

TEST(GestureRule, IsReadyWhenGestureAndActionAreComplete) {
    using enum GestureKind;
    const auto corner = AnchorCorner::topLeft;
    for (const GestureRule& ready : {makeRule(singleTap, -7), makeRule(doubleSoftClick, 2), makeRule(tipTapLeft),
                                     makeSlide(2, std::nullopt), makeDrawing(corner, DrawPattern::zigzag)})
        EXPECT_TRUE(ready.isReady()) << rawValue(ready.gesture);
    for (const GestureRule& incomplete :
         {makeRule(unconfigured, 2), makeRule(singleTap), makeRule(doubleSoftClick), makeRule(edgeSlide),
          makeDrawing(corner, std::nullopt), makeDrawing(std::nullopt, DrawPattern::zigzag),
          makeRule(tipTapLeft, 2, ActionKind::unconfigured)})
        EXPECT_FALSE(incomplete.isReady()) << rawValue(incomplete.gesture);
}

TEST(GestureRule, KeepsTheRecommendedDefaultForTheWholeRun) {
    GestureRule expected = makeRule(GestureKind::singleTap, 3);
    expected.id = GestureRule::recommendedDefault().id;
    expected.name = "Middle click";
    EXPECT_EQ(GestureRule::recommendedDefault(), expected);
    EXPECT_NE(expected.id, Uuid{});
}

}  // namespace
}  // namespace kinesta
