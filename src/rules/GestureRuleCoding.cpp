#include "rules/GestureRuleCoding.h"

#include <optional>
#include <type_traits>
#include <utility>

#include "support/Json.h"

namespace kinesta {
namespace {

constexpr int kIndent = 4;

template <typename T>
void setIfPresent(Json& object, const char* key, const std::optional<T>& value) {
    if (!value)
        return;
    if constexpr (std::is_enum_v<T>) {
        object.set(key, rawValue(*value));
    } else if constexpr (std::is_same_v<T, std::vector<std::string>>) {
        Json texts = Json::array();
        for (const std::string& text : *value)
            texts.push_back(text);
        object.set(key, std::move(texts));
    } else {
        object.set(key, *value);
    }
}

Json toJson(const GestureAction& action) {
    Json object;
    object.set("kind", rawValue(action.kind));
    setIfPresent(object, "keyCode", action.keyCode);
    object.set("modifiers", action.modifiers.rawValue);
    object.set("value", action.value);
    setIfPresent(object, "applicationArguments", action.applicationArguments);
    setIfPresent(object, "customCueLabel", action.customCueLabel);
    setIfPresent(object, "shellCommandAcknowledged", action.shellCommandAcknowledged);
    return object;
}

Json toJson(const GestureRule& rule) {
    Json object;
    object.set("id", rule.id.toString());
    object.set("name", rule.name);
    object.set("isEnabled", rule.isEnabled);
    setIfPresent(object, "fingerCount", rule.fingerCount);
    object.set("gesture", rawValue(rule.gesture));
    setIfPresent(object, "edgeSlideSide", rule.edgeSlideSide);
    setIfPresent(object, "anchorCorner", rule.anchorCorner);
    setIfPresent(object, "drawPattern", rule.drawPattern);
    object.set("action", toJson(rule.action));
    setIfPresent(object, "showsActionCue", rule.showsActionCue);
    return object;
}

// Appends the lines of `text`, which is JSON and so has line breaks only between tokens, one level deeper.
void appendIndented(std::string& out, std::string_view text) {
    out.append("\n").append(kIndent, ' ');
    for (const char c : text) {
        out += c;
        if (c == '\n')
            out.append(kIndent, ' ');
    }
}

}  // namespace

std::string encodeRules(std::span<const GestureRule> rules, RuleListLayout layout) {
    const bool isIndented = layout == RuleListLayout::indented;
    // Rule by rule, so that a long list is never in memory as a whole tree.
    std::string out = "[";
    for (const GestureRule& rule : rules) {
        if (&rule != rules.data())
            out += ',';
        const std::string text = toJson(rule).text(isIndented ? kIndent : -1);
        if (isIndented)
            appendIndented(out, text);
        else
            out += text;
    }
    if (isIndented && !rules.empty())
        out += '\n';
    out += isIndented ? "]\n" : "]";
    return out;
}

}  // namespace kinesta
