#pragma once

#include <string>
#include <vector>

#include "ui/models/RuleEditorModel.h"

namespace kinesta {

/// Something to know about the gesture of a rule.
struct RuleEditorNotice {
    enum class Topic {
        /// Another rule wants the gesture: the first of the rivals can be shown.
        clash,
        /// An edit switched the rule off: it can be turned on once nothing is missing.
        switchedOff,
        /// The system may act on the gesture, too.
        systemGesture,
        /// The touchpad cannot tell this gesture.
        pressure
    };

    Topic topic;
    std::string title;
    std::string detail;

    friend bool operator==(const RuleEditorNotice&, const RuleEditorNotice&) = default;
};

/// The most important ones first, each topic at most once.
std::vector<RuleEditorNotice> noticesOf(const RuleEditorContent& content, bool canTellPressure);

}  // namespace kinesta
