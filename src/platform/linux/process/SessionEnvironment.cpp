#include "platform/linux/process/SessionEnvironment.h"

#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace kinesta {

bool isCurrentDesktop(const std::string& name) {
    const char* list = std::getenv("XDG_CURRENT_DESKTOP");
    return list != nullptr && (':' + std::string(list) + ':').find(':' + name + ':') != std::string::npos;
}

bool isInSearchPath(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((folder + "/" + name).c_str(), X_OK) == 0)
            return true;
    return false;
}

}  // namespace kinesta
