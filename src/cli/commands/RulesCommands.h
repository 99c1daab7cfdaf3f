#pragma once

#include <filesystem>
#include <string>

#include "cli/terminal/Console.h"
#include "rules/SystemGestureWarningChecker.h"

namespace kinesta {

/// `kinesta rules check FILE`: whether a rule file decodes, and what there is to say about each of its rules, also
/// against the system's own gestures.
ExitStatus checkRules(const Console& console, const std::string& file, GestureSystem system, OutputForm form);

/// `kinesta rules list`: the stored rules, with the same notices.
ExitStatus listRules(const Console& console, const std::filesystem::path& defaults, GestureSystem system,
                     OutputForm form);

/// `kinesta rules export FILE`: writes the stored rules to a file, or to the output for "-".
ExitStatus exportRules(const Console& console, const std::filesystem::path& defaults, const std::string& file);

/// `kinesta rules import FILE`: replaces the stored rules by those of a file, once all of it is found valid, and
/// keeps a copy of the list that was there.
ExitStatus importRules(const Console& console, const std::filesystem::path& defaults, const std::string& file);

}  // namespace kinesta
