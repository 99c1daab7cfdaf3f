#include "rules/GestureRule.h"

#include "support/Text.h"

namespace kinesta {

const GestureRule& GestureRule::recommendedDefault() {
    static const GestureRule kRule = [] {
        GestureRule rule;
        rule.id = Uuid::random();
        rule.name = "Middle click";
        rule.isEnabled = true;
        rule.fingerCount = 3;
        rule.gesture = GestureKind::singleTap;
        rule.action.kind = ActionKind::middleClick;
        return rule;
    }();
    return kRule;
}

std::optional<std::string> GestureRule::resolvedVisualCueMessage() const {
    if (auto label = action.resolvedCustomCueLabel())
        return label;
    const std::string_view text = trimmed(name);
    return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

bool GestureRule::isReady() const {
    if (!kinesta::isConfigured(gesture))
        return false;
    if (usesFingerCount(gesture) && !fingerCount)
        return false;
    if (gesture == GestureKind::anchorDraw && (!anchorCorner || !drawPattern))
        return false;
    return action.isConfigured();
}

}  // namespace kinesta
