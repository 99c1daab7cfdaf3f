#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta monitor`: what is recognized on the live pad, with a picture of it on a terminal; no action runs. Until
/// Ctrl-C.
ExitStatus monitor(const Console& console, const std::filesystem::path& defaults);

}  // namespace kinesta
