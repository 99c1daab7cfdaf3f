#pragma once

#include <string>

namespace kinesta {

/// Whether PATH leads to a program of this name.
bool isInSearchPath(const std::string& name);

}  // namespace kinesta
