#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace kinesta {

/// What the system knows of a user.
struct UserRecord {
    std::string homeFolder;
    std::string shell;
};

std::optional<UserRecord> userWithNumber(uid_t number);
std::optional<UserRecord> userWithName(const std::string& name);

}  // namespace kinesta
