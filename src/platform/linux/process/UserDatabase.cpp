#include "platform/linux/process/UserDatabase.h"

#include <pwd.h>

#include <cerrno>
#include <vector>

namespace kinesta {
namespace {

// `ask` is one of the getpw…_r functions with all but its buffer given.
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

}  // namespace

std::optional<UserRecord> userWithNumber(uid_t number) {
    return recordFrom([&](auto... rest) { return getpwuid_r(number, rest...); });
}

std::optional<UserRecord> userWithName(const std::string& name) {
    return recordFrom([&](auto... rest) { return getpwnam_r(name.c_str(), rest...); });
}

}  // namespace kinesta
