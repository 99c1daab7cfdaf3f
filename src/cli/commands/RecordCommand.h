#pragma once

#include <filesystem>
#include <string>

#include "cli/terminal/Console.h"

namespace kinesta {

/// `kinesta record`: writes what the pad reports to a file, or to the output for "-", until Ctrl-C. The file is a valid
/// recording at every moment, and one that was there before stays until then. `device` names the pad by path or name;
/// empty for the one that the settings name. The settings of recognition go into the header, so that a replay
/// recognizes what was recognized here.
ExitStatus record(const Console& console, const std::filesystem::path& defaults, const std::string& output,
                  const std::string& device);

}  // namespace kinesta
