// Any bytes as a stored rule list: reading them never crashes, and what was read survives being written.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "require.h"
#include "rules/GestureConflictChecker.h"
#include "rules/GestureRuleCoding.h"
#include "rules/RuleSelection.h"
#include "rules/SystemGestureWarningChecker.h"

using namespace kinesta;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view json(reinterpret_cast<const char*>(data), size);
    const auto rules = decodeRules(json);
    if (!rules) {
        const std::string& message = rules.error().message;
        require(message.starts_with("line ") && message.size() < 500 && message.find('\n') == std::string::npos);
        return 0;
    }
    for (const RuleListLayout layout : {RuleListLayout::compact, RuleListLayout::indented}) {
        const auto again = decodeRules(encodeRules(*rules, layout));
        require(again && *again == *rules);
    }
    require(GestureConflictChecker::conflictingRuleIDs(*rules).size() <= rules->size());
    for (const GestureRule& rule : *rules) {
        for (const auto& system : enumTable<GestureSystem>())
            (void)SystemGestureWarningChecker::warning(rule, system.value);
        (void)rule.action.summary();
        (void)rule.action.keyboardCueLabel();
        (void)rule.resolvedVisualCueMessage();
        const std::int64_t fingers = rule.fingerCount.value_or(0);
        for (const DetectedGesture& gesture : std::initializer_list<DetectedGesture>{
                 DetectedTap{fingers, rule.gesture}, DetectedEdgeSlide{fingers, rule.resolvedEdgeSlideSide(), 1},
                 DetectedAnchorDraw{rule.anchorCorner.value_or(AnchorCorner::topLeft),
                                    rule.drawPattern.value_or(DrawPattern::lineUp)}}) {
            const GestureRule* selected = selectRule(*rules, gesture, ShellCommands::allowed);
            require(!selected || (selected->isEnabled && selected->action.isConfigured()));
        }
    }
    return 0;
}
