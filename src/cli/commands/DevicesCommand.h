#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta devices`: the touchpads of this machine, and which one is read.
ExitStatus listDevices(const Console& console, const std::filesystem::path& defaults, OutputForm form);

}  // namespace kinesta
