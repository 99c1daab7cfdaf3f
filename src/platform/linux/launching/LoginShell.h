#pragma once

#include <string>

namespace kinesta {

/// The user's login shell: from the user database, else SHELL, else /bin/sh.
std::string loginShell();

/// The first of the two that can be run and does not just refuse logins, else /bin/sh.
std::string chosenShell(const std::string& ofDatabase, const std::string& ofEnvironment);

}  // namespace kinesta
