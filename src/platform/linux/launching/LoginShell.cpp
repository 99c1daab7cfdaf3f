#include "platform/linux/launching/LoginShell.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/linux/process/UserDatabase.h"

namespace kinesta {
namespace {

bool isShell(const std::string& path) {
    const auto name = std::filesystem::path(path).filename();
    return !path.empty() && path.front() == '/' && name != "nologin" && name != "false" &&
           access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::string loginShell() {
    const auto user = ownUser();
    const char* named = std::getenv("SHELL");
    return chosenShell(user ? user->shell : "", named != nullptr ? named : "");
}

std::string chosenShell(const std::string& ofDatabase, const std::string& ofEnvironment) {
    if (isShell(ofDatabase))
        return ofDatabase;
    return isShell(ofEnvironment) ? ofEnvironment : "/bin/sh";
}

}  // namespace kinesta
