#include "ui/models/RuleEditorNotice.h"

#include "support/Translation.h"
#include "ui/models/RuleWords.h"

namespace kinesta {

std::vector<RuleEditorNotice> noticesOf(const RuleEditorContent& content, bool canTellPressure) {
    using Topic = RuleEditorNotice::Topic;
    std::vector<RuleEditorNotice> notices;
    if (!content.rivals.empty())
        notices.push_back({Topic::clash, translated(kClashReason),
                           content.comesFirst
                               ? translated("This rule comes first in the list.")
                               : translated("“%1” comes first in the list.", {content.rivals.front().name})});
    if (content.canTurnOn)
        notices.push_back({Topic::switchedOff, translated("This rule is ready again."),
                           translated("It was switched off while something was missing.")});
    else if (content.wasSwitchedOffByEdit && content.missing)
        notices.push_back({Topic::switchedOff, translated("This rule was switched off."), *content.missing});
    if (const auto& warning = content.systemWarning)
        notices.push_back({Topic::systemGesture, translated(warning->title), translated(warning->detail)});
    if (!canTellPressure && physicalClickPressure(content.rule.gesture) == PhysicalClickPressure::force)
        notices.push_back({Topic::pressure,
                           translated("This touchpad cannot tell how hard it is pressed, so no Force Click will come."),
                           {}});
    return notices;
}

}  // namespace kinesta
