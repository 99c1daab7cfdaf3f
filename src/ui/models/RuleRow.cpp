#include "ui/models/RuleRow.h"

#include <algorithm>

#include "rules/GestureDescription.h"
#include "support/Text.h"
#include "support/Translation.h"
#include "ui/models/RuleWords.h"

namespace kinesta {
namespace {

/// In lower case, À–Þ too: they are in the words of many languages.
std::string folded(std::string_view text) {
    std::string result = lowerCased(text);
    for (std::size_t i = 1; i < result.size(); ++i) {
        const auto second = static_cast<unsigned char>(result[i]);
        if (result[i - 1] == '\xC3' && second >= 0x80 && second <= 0x9E && second != 0x97)
            result[i] = static_cast<char>(second + 0x20);
    }
    return result;
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    const std::string wanted = folded(text);
    for (std::string_view rest = trimmed(wanted); !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest = trimmed(rest.substr(end));
    }
    return words;
}

bool hasAll(const GestureRule& rule, const std::vector<std::string>& words) {
    const std::string text = folded(displayName(rule) + "\n" + describeTrigger(rule) + "\n" + shortGesture(rule) +
                                    "\n" + translated(title(rule.action.kind)) + "\n" + rule.action.summary());
    return std::ranges::all_of(words, [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

}  // namespace

std::vector<RuleRow> ruleRows(std::span<const GestureRule> rules, const std::set<Uuid>& conflicts,
                              std::string_view filter) {
    const std::vector<std::string> words = wordsOf(filter);
    std::vector<RuleRow> rows;
    rows.reserve(rules.size());
    for (const GestureRule& rule : rules) {
        if (!words.empty() && !hasAll(rule, words))
            continue;
        RuleRow& row = rows.emplace_back();
        row.id = rule.id;
        row.name = displayName(rule);
        row.gesture = shortGesture(rule);
        row.action = shortAction(rule.action);
        row.isEnabled = rule.isEnabled;
        if (auto missing = whatIsMissing(rule)) {
            row.mark = RuleMark::unfinished;
            row.reason = std::move(*missing);
        } else if (conflicts.contains(rule.id)) {
            row.mark = RuleMark::clash;
            row.reason = translated(kClashReason);
        }
    }
    return rows;
}

}  // namespace kinesta
