#include "platform/linux/process/UserDatabase.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace kinesta {
namespace {

std::string absolutePathIn(const char* variable) {
    const char* path = std::getenv(variable);
    return path != nullptr && path[0] == '/' ? path : "";
}

bool isShell(const std::string& path) {
    const auto name = std::filesystem::path(path).filename();
    return !path.empty() && path.front() == '/' && name != "nologin" && name != "false" &&
           access(path.c_str(), X_OK) == 0;
}

/// `ask` is one of the getpw…_r functions with every argument bound except the buffer.
template <typename Ask>
std::optional<UserRecord> recordFrom(Ask ask) {
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    int error = 0;
    while ((error = ask(&entry, buffer.data(), buffer.size(), &found)) == ERANGE && buffer.size() < 1 << 20)
        buffer.resize(buffer.size() * 2);
    if (error != 0 || found == nullptr)
        return std::nullopt;
    return UserRecord{found->pw_dir, found->pw_shell};
}

std::optional<UserRecord> ownUser() {
    return recordFrom([](auto... rest) { return getpwuid_r(getuid(), rest...); });
}

}  // namespace

std::optional<UserRecord> userWithName(const std::string& name) {
    return recordFrom([&](auto... rest) { return getpwnam_r(name.c_str(), rest...); });
}

std::string ownHomeFolder() {
    if (std::string home = absolutePathIn("HOME"); !home.empty())
        return home;
    const auto user = ownUser();
    return user ? user->homeFolder : "";
}

std::string configurationFolder() {
    std::string folder = absolutePathIn("XDG_CONFIG_HOME");
    return folder.empty() ? ownHomeFolder() + "/.config" : folder;
}

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
