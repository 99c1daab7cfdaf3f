#pragma once

#include <string>

namespace kinesta {

/// The shell that the person logs in to: by the user database, else by SHELL, else /bin/sh.
std::string loginShell();

/// The first of the two that can be run and is not there to refuse logins, else /bin/sh.
std::string chosenShell(const std::string& ofDatabase, const std::string& ofEnvironment);

}  // namespace kinesta
