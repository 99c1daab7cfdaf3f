// Reads bytes as a stored rule list. Nothing may crash, and every list must be the same after it was written and read
// again.

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
        const DetectedTap tap{rule.fingerCount.value_or(0), rule.gesture};
        const GestureRule* selected = selectRule(*rules, tap, ShellCommands::allowed);
        require(!selected || (selected->isEnabled && selected->action.isConfigured()));
    }
    return 0;
}
