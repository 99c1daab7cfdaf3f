#include "ui/models/GestureDeletionRequest.h"

#include "ui/models/RuleWords.h"

namespace kinesta {

GestureDeletionRequest GestureDeletionRequest::of(std::span<const GestureRule> rules, const std::set<Uuid>& wanted) {
    GestureDeletionRequest request;
    for (const GestureRule& rule : rules)
        if (wanted.contains(rule.id)) {
            request.ids.push_back(rule.id);
            request.names.push_back(displayName(rule));
        }
    return request;
}

std::string GestureDeletionRequest::title() const {
    return names.size() == 1 ? "Delete “" + names.front() + "”?"
                             : "Delete " + std::to_string(names.size()) + " gestures?";
}

}  // namespace kinesta
