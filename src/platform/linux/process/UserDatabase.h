#pragma once

#include <optional>
#include <string>

namespace kinesta {

/// What the user database says about a user.
struct UserRecord {
    std::string homeFolder;
    std::string shell;
};

std::optional<UserRecord> userWithName(const std::string& name);

/// HOME if that is an absolute path, as in shells; else the folder from the user database. Empty if neither has one.
std::string ownHomeFolder();

/// Where settings are kept: XDG_CONFIG_HOME if that is an absolute path, else ".config" in the home folder.
std::string configurationFolder();

/// The user's login shell: from the user database, else SHELL, else /bin/sh.
std::string loginShell();

/// The first of the two that can be run and does not just refuse logins, else /bin/sh.
std::string chosenShell(const std::string& ofDatabase, const std::string& ofEnvironment);

}  // namespace kinesta
