// Any bytes as a stored rule list: reading them never crashes, and what was read survives being written.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "require.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureRuleCoding.h"
#include "rules/RuleSelection.h"
#include "rules/SystemGestureWarningChecker.h"

namespace {

using namespace kinesta;

void exercise(const std::vector<GestureRule>& rules) {
    const auto conflicting = GestureConflictChecker::conflictingRuleIDs(rules);
    require(conflicting.size() <= rules.size());
    for (const GestureRule& rule : rules) {
        for (const auto& system : enumTable<GestureSystem>())
            (void)SystemGestureWarningChecker::warning(rule, system.value);
        (void)rule.action.summary();
        (void)rule.action.keyboardCueLabel();
        (void)rule.resolvedVisualCueMessage();
        const std::int64_t fingers = rule.fingerCount.value_or(0);
        const std::vector<DetectedGesture> gestures{
            DetectedTap{fingers, rule.gesture},
            DetectedEdgeSlide{fingers, rule.resolvedEdgeSlideSide(), 1},
            DetectedAnchorDraw{rule.anchorCorner.value_or(AnchorCorner::topLeft),
                               rule.drawPattern.value_or(DrawPattern::lineUp)},
        };
        for (const DetectedGesture& gesture : gestures) {
            const GestureRule* selected = selectRule(rules, gesture, ShellCommands::allowed);
            require(!selected || (selected->isEnabled && selected->action.isConfigured()));
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view json(reinterpret_cast<const char*>(data), size);
    const auto rules = decodeRules(json);
    if (!rules) {
        require(rules.error().message.starts_with("line "));
        require(rules.error().message.size() < 500);
        require(rules.error().message.find('\n') == std::string::npos);
        return 0;
    }
    for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
        const auto again = decodeRules(encodeRules(*rules, layout));
        require(again && *again == *rules);
    }
    exercise(*rules);
    return 0;
}
