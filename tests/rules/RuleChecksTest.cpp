#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "RuleMaking.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureRuleCoding.h"
#include "rules/RuleSelection.h"
#include "rules/SystemGestureWarningChecker.h"
#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

using enum GestureKind;

TEST(GestureConflictChecker, ComparesQualifiersOfEnabledRules) {
    using enum EdgeSlideSide;
    const auto soft = makeRule(doubleSoftClick, 2), force = makeRule(doubleForceClick, 2);
    const auto corner = AnchorCorner::topLeft;
    const auto zigzag = makeDrawing(corner, DrawPattern::zigzag), unfinished = makeDrawing(corner, std::nullopt);
    const std::vector<std::pair<std::vector<GestureRule>, std::size_t>> rows{
        {{soft, force, makeRule(doubleClick, 2)}, 3},
        {{soft, makeRule(singleClick, 2), makeRule(doubleClick, 3), makeRule(doubleTap, 2)}, 0},
        {{makeRule(tipTapLeft, 2), makeRule(tipTapLeft), makeRule(tipTapRight), makeRule(doubleTipTapLeft)}, 2},
        {{makeRule(singleTap), makeRule(singleTap), makeRule(singleTap, 3), makeRule(singleTap, 2)}, 2},
        {{makeRule(unconfigured), makeRule(unconfigured)}, 0},
        {{soft, force, makeRule(doubleSoftClick, 2)}, 2},
        {{soft, force, makeRule(doubleClick)}, 0},
        {{makeSlide(3, left), makeSlide(3, std::nullopt), makeSlide(3, both)}, 3},
        {{makeSlide(3, left), makeSlide(3, right)}, 0},
        {{makeSlide(3, left), makeSlide(3, right), makeSlide(3, right)}, 2},
        {{makeSlide(3, left), makeSlide(4, both), makeSlide(std::nullopt, left)}, 0},
        {{zigzag, unfinished, makeDrawing(AnchorCorner::topRight, DrawPattern::zigzag)}, 0},
        {{zigzag, makeDrawing(corner, DrawPattern::zigzag)}, 2},
        {{makeRule(singleTap, 3, ActionKind::unconfigured), makeRule(singleTap, 3)}, 2},
        {{disabled(makeRule(singleTap, 3)), makeRule(singleTap, 3)}, 0},
    };
    for (const auto& [rules, conflicting] : rows)
        EXPECT_EQ(GestureConflictChecker::conflictingRuleIDs(rules).size(), conflicting) << encodeRules(rules);
}

TEST(GestureConflictChecker, JudgesALongListAtOnce) {
    std::vector<GestureRule> rules(100'000, makeRule(tipTapLeft));
    for (std::size_t i = 0; i < rules.size(); ++i)
        rules[i].id.bytes = {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8),
                             static_cast<std::uint8_t>(i >> 16)};
    EXPECT_EQ(GestureConflictChecker::conflictingRuleIDs(rules).size(), rules.size());
}

/// Every notice of a system, with the finger counts and gestures that it is for.
std::map<std::string, std::string> noticesOf(GestureSystem system) {
    std::map<std::string, std::string> users;
    for (const std::optional<std::int64_t> fingers :
         {std::optional<std::int64_t>(), {0}, {1}, {2}, {3}, {4}, std::optional(INT64_MAX)})
        for (const GestureKind kind : allCases<GestureKind>())
            if (const auto warning = SystemGestureWarningChecker::warning(makeRule(kind, fingers), system))
                users[warning->title + ": " + warning->detail] +=
                    (fingers ? std::to_string(*fingers) : "-") + " " + std::string(rawValue(kind)) + " ";
    return users;
}

TEST(SystemGestureWarningChecker, WarnsOfTheGesturesThatMacOSUses) {
    const std::string click = " Change it in System Settings \u2192 Trackpad \u2192 Point & Click.";
    const std::map<std::string, std::string> expected{
        {"May also trigger macOS gestures: The drawing finger creates two-finger movement. macOS may scroll or zoom "
         "the app beneath the pointer while Kinesta records the pattern.",
         "- anchorDraw 0 anchorDraw 1 anchorDraw 2 anchorDraw 3 anchorDraw 4 anchorDraw 9223372036854775807 "
         "anchorDraw "},
        {"May conflict with Look Up & Data Detectors: macOS can use a three-finger tap to look up words and detect "
         "data." +
             click,
         "3 singleTap 3 doubleTap 3 tripleTap "},
        {"May conflict with Smart Zoom: macOS can use a two-finger double tap for Smart Zoom. Change it in System "
         "Settings \u2192 Trackpad \u2192 Scroll & Zoom.",
         "2 doubleTap 2 tripleTap "},
        {"May conflict with Secondary Click: macOS can use a two-finger tap for Secondary Click." + click,
         "2 singleTap "},
        {"May conflict with Secondary Click: macOS can use a two-finger click for Secondary Click." + click,
         "2 singleClick 2 singleSoftClick 2 singleForceClick 2 doubleClick 2 doubleSoftClick 2 doubleForceClick "
         "2 tripleClick 2 tripleSoftClick 2 tripleForceClick "},
        {"May also scroll onscreen content: macOS handles two-finger movement as scrolling. Sliding at the edge can "
         "also scroll the app beneath the pointer.",
         "2 edgeSlide "}};
    EXPECT_EQ(noticesOf(GestureSystem::macOS), expected);
    EXPECT_TRUE(noticesOf(GestureSystem::none).empty());
}

TEST(SystemGestureWarningChecker, NamesTheLinuxDesktopThatAlsoActs) {
    const std::vector<std::tuple<GestureRule, std::string, std::string>> rows{
        {makeDrawing(AnchorCorner::topLeft, std::nullopt), "scroll or zoom", ""},
        {makeRule(doubleTap, 2), "click the right button", ""},
        {makeRule(tripleForceClick, 2), "click the right button", ""},
        {makeRule(singleTap, 3), "click the middle button", ""},
        {makeRule(singleClick, 3), "click the middle button", ""},
        {makeSlide(2, std::nullopt), "scroll onscreen content", ""},
        {makeSlide(3, std::nullopt), "open the Activities overview", "change the virtual desktop"},
        {makeSlide(4, std::nullopt), "change the workspace", "open the overview"},
    };
    for (const auto& [rule, onGnome, onKde] : rows)
        for (const auto& [system, name, expected] : {std::tuple{GestureSystem::gnome, "GNOME", onGnome},
                                                     {GestureSystem::kde, "Plasma", onKde.empty() ? onGnome : onKde}}) {
            const auto warning = SystemGestureWarningChecker::warning(rule, system);
            EXPECT_EQ(warning.value().title, "May also " + expected);
            EXPECT_NE(warning->detail.find(name), std::string::npos) << warning->detail;
        }
    for (const GestureRule& rule : {makeRule(singleTap, 4), makeRule(singleClick, 4), makeRule(singleTap),
                                    makeRule(tipTapLeft, 2), makeSlide(5, std::nullopt)})
        for (const GestureSystem system : {GestureSystem::gnome, GestureSystem::kde})
            EXPECT_FALSE(SystemGestureWarningChecker::warning(rule, system)) << encodeRules(std::vector{rule});
}

TEST(RuleSelection, TakesTheFirstRuleThatQualifies) {
    using enum EdgeSlideSide;
    const auto none = std::nullopt;
    const GestureRule tap = makeRule(singleTap, 3), incomplete = makeRule(singleTap, 3, ActionKind::openURL);
    const DetectedTap tapped{3, singleTap};
    const DetectedEdgeSlide toTheLeft{3, left, -2}, toTheRight{3, right, 1};
    const auto corner = AnchorCorner::topLeft;
    const auto line = DrawPattern::lineUp;
    const DetectedAnchorDraw drawn{corner, line};
    GestureRule tapWithDrawing = makeDrawing(corner, line);
    tapWithDrawing.gesture = tipTapLeft;
    // The index of the rule that is taken, or -1.
    const std::vector<std::tuple<std::vector<GestureRule>, DetectedGesture, std::ptrdiff_t>> rows{
        {{}, tapped, -1},
        {{tap, tap}, tapped, 0},
        {{disabled(tap), incomplete, makeShellCommand({}), makeRule(doubleTap, 3), tap}, tapped, 4},
        {{makeRule(singleTap, 2), makeRule(singleTap)}, tapped, -1},
        {{makeRule(singleClick, 3), makeRule(singleClick, 2)}, DetectedTap{2, singleForceClick}, 1},
        {{makeRule(tipTapRight), makeRule(tipTapLeft)}, DetectedTap{2, tipTapLeft}, 1},
        {{makeRule(tipTapLeft, 5)}, DetectedTap{2, tipTapLeft}, 0},
        {{makeSlide(3, none)}, toTheLeft, 0},
        {{makeSlide(3, none)}, toTheRight, 0},
        {{makeSlide(3, right), makeSlide(2, both), makeSlide(none, both), makeRule(edgeSlide, 3), makeSlide(3, both)},
         toTheLeft,
         4},
        {{makeDrawing(AnchorCorner::topRight, line), makeDrawing(corner, DrawPattern::lineDown),
          makeDrawing(corner, none), tapWithDrawing, makeDrawing(corner, line)},
         drawn,
         4},
    };
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const ShellCommands shellCommands : {ShellCommands::forbidden, ShellCommands::allowed}) {
            const auto& [rules, detected, expected] = rows[i];
            const GestureRule* rule = selectRule(rules, detected, shellCommands);
            EXPECT_EQ(rule ? rule - rules.data() : -1, expected) << "row " << i;
        }
    const std::vector<GestureRule> withShell{makeShellCommand(true), tap};
    EXPECT_EQ(selectRule(withShell, tapped, ShellCommands::forbidden), &withShell[1]);
    EXPECT_EQ(selectRule(withShell, tapped, ShellCommands::allowed), &withShell[0]);
}

TEST(ExampleRules, DecodeAndAreReady) {
    const std::string json = readText(KINESTA_SOURCE_DIR "/examples/rules.json");
    const auto rules = decodeRules(json);
    ASSERT_TRUE(rules) << rules.error().message;
    EXPECT_EQ(encodeRules(*rules, RuleListLayout::indented), json);
    EXPECT_GE(rules->size(), 8U);
    EXPECT_EQ(GestureConflictChecker::conflictingRuleIDs(*rules), std::set<Uuid>{});
    std::set<Uuid> ids;
    for (const GestureRule& rule : *rules)
        EXPECT_TRUE(rule.isReady() && ids.insert(rule.id).second) << rule.name;
}

}  // namespace
}  // namespace kinesta
