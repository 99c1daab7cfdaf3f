#include "platform/linux/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace kinesta {

Result<SingleInstance> SingleInstance::claim(const std::filesystem::path& settings) {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path folder =
        runtime != nullptr && runtime[0] == '/' ? std::filesystem::path(runtime) : settings.parent_path();
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    const std::string path = folder / "kinesta.lock";
    FileDescriptor lock(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!lock)
        return Error{path + ": " + std::generic_category().message(errno)};
    if (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK)
            return Error{path + ": " + std::generic_category().message(errno)};
        std::array<char, 16> digits{};
        const ssize_t length = ::pread(lock.number(), digits.data(), digits.size() - 1, 0);
        const long process = length > 0 ? std::strtol(digits.data(), nullptr, 10) : 0;
        return Error{"Kinesta is running already" + (process > 0 ? ", as process " + std::to_string(process) +
                                                                       "; to end it: kill " + std::to_string(process)
                                                                 : std::string("."))};
    }
    const std::string own = std::to_string(::getpid()) + "\n";
    // Only to be told to a person: without it the lock holds as well.
    if (::ftruncate(lock.number(), 0) == 0)
        static_cast<void>(::pwrite(lock.number(), own.data(), own.size(), 0) < 0);
    return SingleInstance(std::move(lock));
}

}  // namespace kinesta
