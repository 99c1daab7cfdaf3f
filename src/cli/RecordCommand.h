#pragma once

#include <string>

#include "cli/Console.h"

namespace kinesta {

/// `kinesta record`: writes what the pad reports to a file, or to the output for "-", until Ctrl-C. The file is a valid
/// recording at every moment. `device` names the pad by path or name; empty for the built-in one.
ExitStatus record(const Console& console, const std::string& output, const std::string& device);

}  // namespace kinesta
