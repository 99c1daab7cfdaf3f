#include "ui/models/GestureDeletionRequest.h"

#include "support/Translation.h"
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
    return names.size() == 1 ? translated("Delete “%1”?", {names.front()})
                             : translated("Delete %1 gestures?", {std::to_string(names.size())});
}

std::string GestureDeletionRequest::message() { return translated("This action cannot be undone."); }

}  // namespace kinesta
