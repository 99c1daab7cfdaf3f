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

TEST(Uuid, IsRandomVersionFourAndRoundTrips) {
    std::set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const Uuid id = Uuid::random();
        const std::string text = id.toString();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        EXPECT_EQ(Uuid::parse(text), id) << text;
        seen.insert(id);
    }
    EXPECT_EQ(seen.size(), 1000U);
}

TEST(Uuid, ParsesEitherCaseAndNothingElse) {
    const std::string text = "0123ABCD-EF45-6789-abcd-ef0123456789";
    const auto id = Uuid::parse(text);
    ASSERT_TRUE(id);
    EXPECT_EQ(id->toString(), "0123ABCD-EF45-6789-ABCD-EF0123456789");
    EXPECT_EQ(Uuid::parse(text + "0"), std::nullopt);
    EXPECT_EQ(Uuid::parse("{" + text.substr(1, 34) + "}"), std::nullopt);
    for (std::size_t i = 0; i < text.size(); ++i) {
        EXPECT_EQ(Uuid::parse(text.substr(0, i)), std::nullopt);
        for (const char wrong : {text[i] == '-' ? '0' : '-', 'g', 'G', '\0', ' ', '`', '@', '/', ':'}) {
            std::string broken = text;
            broken[i] = wrong;
            EXPECT_EQ(Uuid::parse(broken), std::nullopt) << broken;
        }
    }
}

TEST(GestureAction, IsConfiguredWhenItsKindHasWhatItNeeds) {
    GestureAction withKey, withBlanks, withValue, refused, acknowledged;
    withKey.keyCode = 0;
    withBlanks.value = " \t\n\u00A0\u2028";
    withBlanks.shellCommandAcknowledged = true;
    withValue.value = " ls\n";
    refused = acknowledged = withValue;
    refused.shellCommandAcknowledged = false;
    acknowledged.shellCommandAcknowledged = true;
    const auto configuredKinds = [](GestureAction action) {
        std::string kinds;
        for (const auto& row : enumTable<ActionKind>())
            if (action.kind = row.value; action.isConfigured())
                kinds.append(row.rawValue).append(" ");
        return kinds;
    };
    const std::string always = "middleClick closeWindow ";
    const std::string own = "toggleConfigurationWindow disableAllRules adjustVolume ";
    const std::string valued = always + "openURL openFileOrFolder launchApplication ";
    EXPECT_EQ(configuredKinds({}), always + own);
    EXPECT_EQ(configuredKinds(withKey), "keyboardShortcut " + always + own);
    EXPECT_EQ(configuredKinds(withBlanks), always + own);
    EXPECT_EQ(configuredKinds(withValue), valued + own);
    EXPECT_EQ(configuredKinds(refused), valued + own);
    EXPECT_EQ(configuredKinds(acknowledged), valued + "shellCommand " + own);
}

TEST(GestureAction, SummarySaysWhatItDoes) {
    std::string fixed;
    for (const auto& row : enumTable<ActionKind>())
        fixed += makeAction(row.value).summary() + "|";
    EXPECT_EQ(fixed,
              "No action|Not configured|Middle click|Close window|Not configured|Not configured|Not configured|"
              "Not configured|Show or hide Kinesta|Disable every rule|Slide up/down to adjust volume|");
    EXPECT_EQ(makeAction(ActionKind::launchApplication, "   ").summary(), "   ");
    EXPECT_EQ(makeAction(ActionKind::middleClick, "ignored").summary(), "Middle click");
    GestureAction shortcut = makeAction(ActionKind::keyboardShortcut, "ignored");
    shortcut.keyCode = 0;
    EXPECT_EQ(shortcut.summary(), "A");
    shortcut.modifiers = ShortcutModifiers::shift | ShortcutModifiers::command;
    EXPECT_EQ(shortcut.summary(), "⇧⌘A");
}

TEST(GestureAction, OnlyALaunchHasArguments) {
    GestureAction action = makeAction(ActionKind::openURL, "https://a");
    action.applicationArguments = {"-a"};
    EXPECT_EQ(action.resolvedApplicationArguments(), std::vector<std::string>{});
}

TEST(GestureAction, CueNamesAShortcutByPresetThenLabelThenKeys) {
    GestureAction action = makeAction(ActionKind::keyboardShortcut);
    action.customCueLabel = " Mine\n";
    EXPECT_EQ(action.keyboardCueLabel(), std::nullopt) << "no key yet";
    action.keyCode = 9;
    EXPECT_EQ(action.keyboardCueLabel(), "Mine");
    action.modifiers = ShortcutModifiers::command;
    EXPECT_EQ(action.keyboardCueLabel(), "Paste");
    action.modifiers = ShortcutModifiers::option;
    action.customCueLabel = " \n";
    EXPECT_EQ(action.keyboardCueLabel(), "⌥V");
    action.kind = ActionKind::middleClick;
    EXPECT_EQ(action.keyboardCueLabel(), std::nullopt);
}

TEST(GestureRule, CueMessageIsTheLabelElseTheName) {
    GestureRule rule = makeRule(GestureKind::singleTap, 3);
    EXPECT_EQ(rule.resolvedVisualCueMessage(), std::nullopt);
    rule.name = "\u3000 \t";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), std::nullopt);
    rule.name = " Name of it ";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), "Name of it");
    rule.action.customCueLabel = "\n";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), "Name of it");
    rule.action.customCueLabel = "\nLabel ";
    EXPECT_EQ(rule.resolvedVisualCueMessage(), "Label");
}

TEST(GestureRule, IsReadyWhenGestureAndActionAreComplete) {
    for (const auto& row : enumTable<GestureKind>()) {
        SCOPED_TRACE(row.rawValue);
        const bool isDraw = row.value == GestureKind::anchorDraw;
        GestureRule rule = makeRule(row.value);
        EXPECT_EQ(rule.isReady(), isConfigured(row.value) && !usesFingerCount(row.value) && !isDraw);
        rule.fingerCount = -7;
        EXPECT_EQ(rule.isReady(), isConfigured(row.value) && !isDraw) << "the number itself is not judged";
        rule.anchorCorner = AnchorCorner::topLeft;
        EXPECT_EQ(rule.isReady(), isConfigured(row.value) && !isDraw);
        rule.drawPattern = DrawPattern::zigzag;
        EXPECT_EQ(rule.isReady(), isConfigured(row.value));
        rule.anchorCorner.reset();
        EXPECT_EQ(rule.isReady(), isConfigured(row.value) && !isDraw);
        rule.anchorCorner = AnchorCorner::topLeft;
        rule.action = {};
        EXPECT_FALSE(rule.isReady());
    }
}

TEST(GestureRule, RecommendedDefaultIsOneRuleForTheWholeRun) {
    const GestureRule& rule = GestureRule::recommendedDefault();
    EXPECT_EQ(rule.id, GestureRule::recommendedDefault().id);
    EXPECT_NE(rule.id, Uuid{});
    GestureRule expected = makeRule(GestureKind::singleTap, 3);
    expected.id = rule.id;
    expected.name = "Middle click";
    EXPECT_EQ(rule, expected);
    EXPECT_TRUE(rule.isReady());
}

}  // namespace
}  // namespace kinesta
