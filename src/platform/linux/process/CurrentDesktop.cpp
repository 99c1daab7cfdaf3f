#include "platform/linux/process/CurrentDesktop.h"

#include <cstdlib>

namespace kinesta {

bool isCurrentDesktop(const std::string& name) {
    const char* list = std::getenv("XDG_CURRENT_DESKTOP");
    return list != nullptr && (':' + std::string(list) + ':').find(':' + name + ':') != std::string::npos;
}

}  // namespace kinesta
