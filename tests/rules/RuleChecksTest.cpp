#include <gtest/gtest.h>

#include <map>

#include "RuleMaking.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureRuleCoding.h"
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

TEST(SystemGestureWarningChecker, WarnsOfGesturesThatTheSystemUses) {
    // The gestures that get each warning, with their finger counts.
    std::map<std::string, std::string> gestures;
    for (const std::optional<std::int64_t> fingers : {std::optional<std::int64_t>(), {1}, {2}, {3}, {4}})
        for (const GestureKind kind : allCases<GestureKind>())
            if (const auto warning = SystemGestureWarningChecker::warning(makeRule(kind, fingers))) {
                EXPECT_FALSE(warning->detail.empty());
                gestures[warning->title] += (fingers ? std::to_string(*fingers) : "-") + " ";
                gestures[warning->title].append(rawValue(kind)).append(" ");
            }
    const std::map<std::string, std::string> expected{
        {"May also trigger macOS gestures", "- anchorDraw 1 anchorDraw 2 anchorDraw 3 anchorDraw 4 anchorDraw "},
        {"May conflict with Look Up & Data Detectors", "3 singleTap 3 doubleTap 3 tripleTap "},
        {"May conflict with Smart Zoom", "2 doubleTap 2 tripleTap "},
        {"May conflict with Secondary Click",
         "2 singleTap 2 singleClick 2 singleSoftClick 2 singleForceClick 2 doubleClick 2 doubleSoftClick "
         "2 doubleForceClick 2 tripleClick 2 tripleSoftClick 2 tripleForceClick "},
        {"May also scroll onscreen content", "2 edgeSlide "}};
    EXPECT_EQ(gestures, expected);
    EXPECT_NE(SystemGestureWarningChecker::warning(makeRule(singleTap, 2)),
              SystemGestureWarningChecker::warning(makeRule(singleClick, 2)));
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
