#include "platform/linux/process/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

namespace kinesta {

namespace {

/// Opens or creates a file that belongs to this user. None if that is not possible.
FileDescriptor openOwn(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    FileDescriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    struct stat status {};
    // In a shared folder another user may have created it.
    if (!file || ::fstat(file.number(), &status) != 0 || status.st_uid != ::geteuid())
        return {};
    return file;
}

Error runningAlready(const FileDescriptor& lock) {
    std::array<char, 16> digits{};
    const ssize_t length = ::pread(lock.number(), digits.data(), digits.size() - 1, 0);
    const long process = length > 0 ? std::strtol(digits.data(), nullptr, 10) : 0;
    if (process <= 0)
        return {"Kinesta is running already."};
    const std::string number = std::to_string(process);
    return {"Kinesta is running already, as process " + number + "; to end it: kill " + number};
}

}  // namespace

Result<SingleInstance> SingleInstance::claim(const std::filesystem::path& settings) {
    std::error_code ignored;
    std::vector<std::filesystem::path> places{
        settings.parent_path() / "kinesta.lock",
        std::filesystem::temp_directory_path(ignored) / ("kinesta-" + std::to_string(::geteuid()) + ".lock")};
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR"); runtime != nullptr && runtime[0] == '/')
        places.insert(places.begin(), std::filesystem::path(runtime) / "kinesta.lock");
    for (const std::filesystem::path& place : places) {
        FileDescriptor lock = openOwn(place);
        if (!lock)
            continue;
        if (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EWOULDBLOCK)
                return runningAlready(lock);
            continue;  // a file system without locks
        }
        const std::string own = std::to_string(::getpid()) + "\n";
        // Only for the message to the user; the lock works without it.
        if (::ftruncate(lock.number(), 0) == 0)
            static_cast<void>(::pwrite(lock.number(), own.data(), own.size(), 0) < 0);
        return SingleInstance(std::move(lock));
    }
    return SingleInstance(FileDescriptor());
}

}  // namespace kinesta
