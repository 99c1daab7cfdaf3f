#include "rules/GestureConflictChecker.h"

#include <array>
#include <compare>
#include <cstddef>
#include <map>
#include <optional>

namespace kinesta {
namespace {

// What rules must have in common to compete at all. The pressures of a click share the group of their count.
struct Ground {
    GestureKind gesture;
    std::optional<std::int64_t> fingerCount;
    std::optional<AnchorCorner> corner;
    std::optional<DrawPattern> pattern;

    friend auto operator<=>(const Ground&, const Ground&) = default;
};

// Within a group, a rule takes everything (any pressure, both sides) or one of two halves that exclude each other.
enum class Share { everything, firstHalf, secondHalf };

using Counts = std::array<std::size_t, 3>;  // rules of a group by share

bool isChecked(const GestureRule& rule) { return rule.isEnabled && isConfigured(rule.gesture); }

Ground ground(const GestureRule& rule) {
    Ground ground{rule.gesture, std::nullopt, std::nullopt, std::nullopt};
    if (const auto count = physicalClickCount(rule.gesture))
        ground.gesture = *physicalClickGesture(*count, std::nullopt);
    if (usesFingerCount(rule.gesture))
        ground.fingerCount = rule.fingerCount;
    if (rule.gesture == GestureKind::anchorDraw) {
        ground.corner = rule.anchorCorner;
        ground.pattern = rule.drawPattern;
    }
    return ground;
}

Share share(const GestureRule& rule) {
    if (const auto pressure = physicalClickPressure(rule.gesture))
        return *pressure == PhysicalClickPressure::soft ? Share::firstHalf : Share::secondHalf;
    if (rule.gesture != GestureKind::edgeSlide || rule.resolvedEdgeSlideSide() == EdgeSlideSide::both)
        return Share::everything;
    return rule.edgeSlideSide == EdgeSlideSide::left ? Share::firstHalf : Share::secondHalf;
}

bool hasRival(const Counts& counts, Share share) {
    if (share == Share::everything)
        return counts[0] + counts[1] + counts[2] > 1;
    return counts[0] > 0 || counts[static_cast<std::size_t>(share)] > 1;
}

}  // namespace

// By groups rather than by pairs: an imported list may be long, and the window checks it at every change.
std::set<Uuid> GestureConflictChecker::conflictingRuleIDs(std::span<const GestureRule> rules) {
    std::map<Ground, Counts> groups;
    for (const GestureRule& rule : rules)
        if (isChecked(rule))
            ++groups[ground(rule)][static_cast<std::size_t>(share(rule))];
    std::set<Uuid> ids;
    for (const GestureRule& rule : rules)
        if (isChecked(rule) && hasRival(groups[ground(rule)], share(rule)))
            ids.insert(rule.id);
    return ids;
}

}  // namespace kinesta
