#pragma once

#include <istream>
#include <string>
#include <vector>

#include "rules/GestureRule.h"
#include "support/Result.h"

namespace kinesta {

/// Reads a rule list from a file, or from `standardInput` for "-". The error is "FILE:LINE: what is wrong" where a
/// line can be told, else "FILE: what is wrong".
Result<std::vector<GestureRule>> readRuleFile(const std::string& file, std::istream& standardInput);

}  // namespace kinesta
