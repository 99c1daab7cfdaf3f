#pragma once

#include <cstddef>
#include <filesystem>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "app/Desktop.h"
#include "rules/RuleStore.h"

namespace kinesta {

/// Reads a rule list from a file, or from `standardInput` for "-". The error is "FILE:LINE: what is wrong" if the line
/// is known, else "FILE: what is wrong".
Result<std::vector<GestureRule>> readRuleFile(const std::string& file, std::istream& standardInput);

/// Why the stored rules could not be read, as a sentence; nothing if they could.
std::optional<std::string> problemOfStoredRules(const RuleStore& store);

/// The rules as a file that readRuleFile() reads.
std::string ruleFileText(const RuleStore& store);
Outcome exportRules(const RuleStore& store, const std::string& file);

struct ImportedRules {
    std::size_t count = 0;
    std::size_t enabled = 0;
    /// How many rules are on in the file but stay off because they are incomplete or not acknowledged.
    std::size_t leftOff = 0;
    /// The rule file with the previous list.
    std::filesystem::path copy;
};

/// Replaces the stored rules and keeps a copy of the previous list. After an error nothing has changed.
Result<ImportedRules> importRules(Desktop& desktop, RuleStore& store, std::vector<GestureRule> rules);

}  // namespace kinesta
