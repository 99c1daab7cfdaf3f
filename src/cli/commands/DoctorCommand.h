#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta doctor`: what works on this machine and desktop, and what to do about the rest. badInput if
/// anything is missing that an enabled rule needs.
ExitStatus doctor(const Console& console, const std::filesystem::path& defaults, OutputForm form);

}  // namespace kinesta
