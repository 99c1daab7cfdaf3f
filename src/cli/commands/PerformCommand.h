#pragma once

#include <filesystem>
#include <string>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta perform`: runs the action of one stored rule now, whether or not the rule is on. `rule` is its id or its
/// name. A slide's action is performed with one step upward.
ExitStatus perform(const Console& console, const std::filesystem::path& defaults, const std::string& rule);

}  // namespace kinesta
