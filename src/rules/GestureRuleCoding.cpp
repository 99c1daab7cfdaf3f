#include "rules/GestureRuleCoding.h"

#include <nlohmann/json.hpp>

#include "rules/RuleListDecoder.h"

namespace kinesta {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kIndent = 4;

template <typename T>
void setIfPresent(Json& object, const char* key, const std::optional<T>& value) {
    if (!value)
        return;
    if constexpr (std::is_enum_v<T>)
        object[key] = rawValue(*value);
    else
        object[key] = *value;
}

Json toJson(const GestureAction& action) {
    Json object;
    object["kind"] = rawValue(action.kind);
    setIfPresent(object, "keyCode", action.keyCode);
    object["modifiers"] = action.modifiers.rawValue;
    object["value"] = action.value;
    setIfPresent(object, "applicationArguments", action.applicationArguments);
    setIfPresent(object, "customCueLabel", action.customCueLabel);
    setIfPresent(object, "shellCommandAcknowledged", action.shellCommandAcknowledged);
    return object;
}

Json toJson(const GestureRule& rule) {
    Json object;
    object["id"] = rule.id.toString();
    object["name"] = rule.name;
    object["isEnabled"] = rule.isEnabled;
    setIfPresent(object, "fingerCount", rule.fingerCount);
    object["gesture"] = rawValue(rule.gesture);
    setIfPresent(object, "edgeSlideSide", rule.edgeSlideSide);
    setIfPresent(object, "anchorCorner", rule.anchorCorner);
    setIfPresent(object, "drawPattern", rule.drawPattern);
    object["action"] = toJson(rule.action);
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
    // Rule by rule, so that a long list never stands in memory as a tree.
    std::string out = "[";
    for (const GestureRule& rule : rules) {
        if (&rule != rules.data())
            out += ',';
        const std::string text =
            toJson(rule).dump(isIndented ? kIndent : -1, ' ', false, Json::error_handler_t::replace);
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

Result<std::vector<GestureRule>> decodeRules(std::string_view json) { return RuleListDecoder(json).decode(); }

}  // namespace kinesta
