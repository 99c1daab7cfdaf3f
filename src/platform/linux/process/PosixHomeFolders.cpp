#include "platform/linux/process/PosixHomeFolders.h"

#include "platform/linux/process/UserDatabase.h"

namespace kinesta {

std::optional<std::string> PosixHomeFolders::homeFolder(const std::string& userName) const {
    const auto user =
        userName.empty() ? UserRecord{.homeFolder = ownHomeFolder(), .shell = {}} : userWithName(userName);
    return user && !user->homeFolder.empty() ? std::optional(user->homeFolder) : std::nullopt;
}

}  // namespace kinesta
