#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

#include "RuleMaking.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureRuleCoding.h"
#include "rules/SystemGestureWarningChecker.h"

namespace kinesta {
namespace {

using enum GestureKind;

// The relation as it is told of two rules, to compare the grouped check with.
bool gesturesCoincide(GestureKind a, GestureKind b) {
    const auto isAny = [](GestureKind kind) {
        return kind == singleClick || kind == doubleClick || kind == tripleClick;
    };
    if (a == b)
        return true;
    return isPhysicalClick(a) && isPhysicalClick(b) && physicalClickCount(a) == physicalClickCount(b) &&
           (isAny(a) || isAny(b));
}

bool conflict(const GestureRule& a, const GestureRule& b) {
    if (!gesturesCoincide(a.gesture, b.gesture))
        return false;
    if (a.gesture == anchorDraw)
        return a.anchorCorner == b.anchorCorner && a.drawPattern == b.drawPattern;
    if (a.gesture == edgeSlide)
        return a.fingerCount == b.fingerCount && overlaps(a.resolvedEdgeSlideSide(), b.resolvedEdgeSlideSide());
    return !usesFingerCount(a.gesture) || a.fingerCount == b.fingerCount;
}

std::set<Uuid> conflictsByPairs(const std::vector<GestureRule>& rules) {
    std::set<Uuid> ids;
    for (std::size_t i = 0; i < rules.size(); ++i)
        for (std::size_t k = i + 1; k < rules.size(); ++k)
            if (rules[i].isEnabled && rules[k].isEnabled && rules[i].gesture != unconfigured &&
                conflict(rules[i], rules[k]))
                ids.insert({rules[i].id, rules[k].id});
    return ids;
}

TEST(GestureConflictChecker, AgreesWithComparingEveryPair) {
    RandomRules random(3);
    std::size_t found = 0;
    std::size_t spared = 0;
    for (int round = 0; round < 1500; ++round) {
        auto rules = random.list(random.below(24));
        // Most of all rules are clicks and slides: only there do rules compete in part.
        for (GestureRule& rule : rules)
            if (random.below(2) == 0)
                rule.gesture = random.below(2) == 0 ? edgeSlide : static_cast<GestureKind>(4 + random.below(6));
        const auto expected = conflictsByPairs(rules);
        ASSERT_EQ(GestureConflictChecker::conflictingRuleIDs(rules), expected) << encodeRules(rules);
        found += expected.size();
        spared += rules.size() - expected.size();
    }
    EXPECT_GT(found, 1000U);
    EXPECT_GT(spared, 1000U);
}

TEST(GestureConflictChecker, Pairs) {
    const auto slide = [](std::optional<std::int64_t> fingers, std::optional<EdgeSlideSide> side) {
        GestureRule rule = makeRule(edgeSlide, fingers, ActionKind::adjustVolume);
        rule.edgeSlideSide = side;
        return rule;
    };
    const auto draw = [](std::optional<DrawPattern> pattern) {
        GestureRule rule = makeRule(anchorDraw);
        rule.anchorCorner = AnchorCorner::topLeft;
        rule.drawPattern = pattern;
        return rule;
    };
    auto incomplete = makeRule(singleTap, 3, ActionKind::unconfigured);
    auto off = makeRule(singleTap, 3);
    off.isEnabled = false;
    struct Case {
        std::vector<GestureRule> rules;
        std::size_t conflicting;
    };
    using enum EdgeSlideSide;
    for (const Case& c : std::vector<Case>{
             {{makeRule(doubleClick, 2), makeRule(doubleForceClick, 2)}, 2},
             {{makeRule(doubleSoftClick, 2), makeRule(doubleForceClick, 2)}, 0},
             {{makeRule(doubleSoftClick, 2), makeRule(doubleForceClick, 2), makeRule(doubleClick, 2)}, 3},
             {{slide(3, left), slide(3, std::nullopt)}, 2},
             {{slide(3, left), slide(3, right)}, 0},
             {{draw(DrawPattern::zigzag), draw(std::nullopt)}, 0},
             {{makeRule(tipTapLeft, 2), makeRule(tipTapLeft, 3)}, 2},
             {{incomplete, makeRule(singleTap, 3)}, 2},
             {{off, makeRule(singleTap, 3)}, 0},
             {{makeRule(unconfigured), makeRule(unconfigured)}, 0},
         })
        EXPECT_EQ(GestureConflictChecker::conflictingRuleIDs(c.rules).size(), c.conflicting) << encodeRules(c.rules);
}

TEST(GestureConflictChecker, ALongListIsNoDanger) {
    std::vector<GestureRule> rules(100'000, makeRule(tipTapLeft));
    for (std::size_t i = 0; i < rules.size(); ++i)
        rules[i].id.bytes = {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8),
                             static_cast<std::uint8_t>(i >> 16)};
    EXPECT_EQ(GestureConflictChecker::conflictingRuleIDs(rules).size(), rules.size());
}

const std::string kPointAndClick = " Change it in System Settings \u2192 Trackpad \u2192 Point & Click.";

TEST(SystemGestureWarningChecker, WarnsOfTheGesturesThatTheSystemUses) {
    const SystemGestureWarning draw{"May also trigger macOS gestures",
                                    "The drawing finger creates two-finger movement. macOS may scroll or zoom the app "
                                    "beneath the pointer while Kinesta records the pattern."};
    const SystemGestureWarning lookUp{
        "May conflict with Look Up & Data Detectors",
        "macOS can use a three-finger tap to look up words and detect data." + kPointAndClick};
    const SystemGestureWarning zoom{"May conflict with Smart Zoom",
                                    "macOS can use a two-finger double tap for Smart Zoom. Change it in System "
                                    "Settings \u2192 Trackpad \u2192 Scroll & Zoom."};
    const SystemGestureWarning tap{"May conflict with Secondary Click",
                                   "macOS can use a two-finger tap for Secondary Click." + kPointAndClick};
    const SystemGestureWarning click{"May conflict with Secondary Click",
                                     "macOS can use a two-finger click for Secondary Click." + kPointAndClick};
    const SystemGestureWarning slide{"May also scroll onscreen content",
                                     "macOS handles two-finger movement as scrolling. Sliding at the edge can also "
                                     "scroll the app beneath the pointer."};
    std::map<std::pair<GestureKind, std::int64_t>, SystemGestureWarning> expected{
        {{singleTap, 3}, lookUp}, {{doubleTap, 3}, lookUp}, {{tripleTap, 3}, lookUp}, {{singleTap, 2}, tap},
        {{doubleTap, 2}, zoom},   {{tripleTap, 2}, zoom},   {{edgeSlide, 2}, slide}};
    for (int kind = 4; kind <= 12; ++kind)
        expected[{static_cast<GestureKind>(kind), 2}] = click;
    constexpr std::int64_t kNone = INT64_MIN;
    for (const auto& row : enumTable<GestureKind>()) {
        for (const std::int64_t fingers : {kNone, std::int64_t{0}, std::int64_t{1}, std::int64_t{2}, std::int64_t{3},
                                           std::int64_t{4}, std::int64_t{5}, INT64_MAX}) {
            const auto entry = expected.find({row.value, fingers});
            const auto wanted = row.value == anchorDraw   ? std::optional(draw)
                                : entry == expected.end() ? std::nullopt
                                                          : std::optional(entry->second);
            const auto count = fingers == kNone ? std::nullopt : std::optional(fingers);
            EXPECT_EQ(SystemGestureWarningChecker::warning(makeRule(row.value, count)), wanted)
                << row.rawValue << " " << fingers;
        }
    }
}

TEST(ExampleRules, AreLaidOutAsExported) {
    std::ifstream file(KINESTA_SOURCE_DIR "/examples/rules.json", std::ios::binary);
    const std::string json{std::istreambuf_iterator<char>(file), {}};
    const auto rules = decodeRules(json);
    ASSERT_TRUE(rules) << rules.error().message;
    EXPECT_EQ(encodeRules(*rules, RuleListLayout::indented), json) << "laid out as an export is";
    EXPECT_GE(rules->size(), 8U);
    std::set<Uuid> ids;
    for (const GestureRule& rule : *rules)
        EXPECT_TRUE(ids.insert(rule.id).second) << rule.name;
}

}  // namespace
}  // namespace kinesta
