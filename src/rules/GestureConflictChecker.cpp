#include "rules/GestureConflictChecker.h"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <tuple>

namespace kinesta {
namespace {

// Rules compete only if they have this in common. All pressures of a click count share one group.
// A tuple: std::optional has no <=> in libc++ 16.
using Group =
    std::tuple<GestureKind, std::optional<std::int64_t>, std::optional<AnchorCorner>, std::optional<DrawPattern>>;

// Within a group, a rule takes everything (any pressure, both sides) or one of two disjoint halves.
enum class Share { everything, firstHalf, secondHalf };

using Counts = std::array<std::size_t, 3>;  // rules of a group by share

bool isChecked(const GestureRule& rule) { return rule.isEnabled && isConfigured(rule.gesture); }

Group group(const GestureRule& rule) {
    const auto count = physicalClickCount(rule.gesture);
    const bool isDrawn = rule.gesture == GestureKind::anchorDraw;
    return {count ? *physicalClickGesture(*count, std::nullopt) : rule.gesture,
            usesFingerCount(rule.gesture) ? rule.fingerCount : std::nullopt, isDrawn ? rule.anchorCorner : std::nullopt,
            isDrawn ? rule.drawPattern : std::nullopt};
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

// By groups, not pairs: an imported list may be long, and the window checks it at every change.
std::set<Uuid> GestureConflictChecker::conflictingRuleIDs(std::span<const GestureRule> rules) {
    std::map<Group, Counts> groups;
    for (const GestureRule& rule : rules)
        if (isChecked(rule))
            ++groups[group(rule)][static_cast<std::size_t>(share(rule))];
    std::set<Uuid> ids;
    for (const GestureRule& rule : rules)
        if (isChecked(rule) && hasRival(groups[group(rule)], share(rule)))
            ids.insert(rule.id);
    return ids;
}

bool GestureConflictChecker::areRivals(const GestureRule& a, const GestureRule& b) {
    if (!isChecked(a) || !isChecked(b) || group(a) != group(b))
        return false;
    Counts counts{};
    ++counts[static_cast<std::size_t>(share(a))];
    ++counts[static_cast<std::size_t>(share(b))];
    return hasRival(counts, share(a));
}

}  // namespace kinesta
