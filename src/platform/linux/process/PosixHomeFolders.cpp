#include "platform/linux/process/PosixHomeFolders.h"

#include <unistd.h>

#include <cstdlib>

#include "platform/linux/process/UserDatabase.h"

namespace kinesta {

std::optional<std::string> PosixHomeFolders::homeFolder(const std::string& userName) const {
    const char* home = std::getenv("HOME");
    if (userName.empty() && home != nullptr && home[0] == '/')
        return home;
    const auto user = userName.empty() ? userWithNumber(getuid()) : userWithName(userName);
    if (!user || user->homeFolder.empty())
        return std::nullopt;
    return user->homeFolder;
}

}  // namespace kinesta
