#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/GestureRule.h"
#include "support/Result.h"

namespace kinesta {

/// How an encoded rule list is laid out: on one line for storage, or indented for a person to read.
enum class RuleListLayout { compact, indented };

/// The rule list as a JSON array (UTF-8). Bytes of a text that are not UTF-8 are replaced by U+FFFD.
std::string encodeRules(std::span<const GestureRule> rules, RuleListLayout layout = RuleListLayout::compact);

/// Reads the JSON form of a rule list. One bad rule spoils the whole list; the error then says "line N: " and what
/// is wrong where, without a file name.
Result<std::vector<GestureRule>> decodeRules(std::string_view json);

}  // namespace kinesta
