#pragma once

#include <string>

namespace kinesta {

/// Whether a folder in PATH has a program with this name.
bool isInSearchPath(const std::string& name);

}  // namespace kinesta
