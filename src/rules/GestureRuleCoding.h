#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/GestureRule.h"
#include "support/Result.h"

namespace kinesta {

/// The layout of an encoded rule list: on one line for storage, or indented to be read.
enum class RuleListLayout { compact, indented };

/// The rule list as a JSON array (UTF-8). Bytes of a text that are not UTF-8 are replaced by U+FFFD.
std::string encodeRules(std::span<const GestureRule> rules, RuleListLayout layout = RuleListLayout::compact);

/// Decodes a rule list. One bad rule makes the whole list fail. The error starts with "line N: " and has no file name.
Result<std::vector<GestureRule>> decodeRules(std::string_view json);

}  // namespace kinesta
