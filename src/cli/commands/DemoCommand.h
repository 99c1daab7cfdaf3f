#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta demo`: plays the bundled recordings of `examples` in real time, on a terminal with a picture of the pad,
/// elsewhere as plain lines. Nothing is performed.
ExitStatus demo(const Console& console, const std::filesystem::path& examples);

}  // namespace kinesta
