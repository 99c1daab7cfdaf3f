#include "platform/posix/SingleInstance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

namespace kinesta {

namespace {

std::vector<std::filesystem::path> places(const std::filesystem::path& settings) {
    std::error_code ignored;
    std::vector<std::filesystem::path> places{
        settings.parent_path() / "kinesta.lock",
        std::filesystem::temp_directory_path(ignored) / ("kinesta-" + std::to_string(::geteuid()) + ".lock")};
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR"); runtime != nullptr && runtime[0] == '/')
        places.insert(places.begin(), std::filesystem::path(runtime) / "kinesta.lock");
    return places;
}

/// Opens a file that belongs to this user. None if that is not possible.
FileDescriptor openOwn(const std::filesystem::path& path, int creation) {
    FileDescriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC | creation, S_IRUSR | S_IWUSR));
    struct stat status {};
    // In a shared folder another user may have created it.
    if (!file || ::fstat(file.number(), &status) != 0 || status.st_uid != ::geteuid())
        return {};
    return file;
}

/// Another file than the one that is locked as a whole: on macOS the two kinds of locks see each other.
FileDescriptor openRoles(const std::filesystem::path& place, int creation) {
    return openOwn(std::filesystem::path(place).replace_extension(".role"), creation);
}

/// The holder marks its role by locking one byte: any process can then ask the system for its number, which is never
/// that of an earlier holder.
struct flock mark(SingleInstance::Role role) {
    struct flock byte {};
    byte.l_type = F_WRLCK;
    byte.l_whence = SEEK_SET;
    byte.l_start = static_cast<off_t>(role);
    byte.l_len = 1;
    return byte;
}

std::optional<SingleInstance::Holder> markedHolder(const std::filesystem::path& place) {
    const FileDescriptor file = openRoles(place, 0);
    if (!file)
        return std::nullopt;
    for (const auto role : {SingleInstance::Role::daemon, SingleInstance::Role::application})
        if (struct flock byte = mark(role); ::fcntl(file.number(), F_GETLK, &byte) == 0 && byte.l_type != F_UNLCK)
            return SingleInstance::Holder{byte.l_pid, role};
    return std::nullopt;
}

Error runningAlready(const std::filesystem::path& place) {
    // The holder has locked the file a moment before it marks its role.
    for (int attempt = 0; attempt < 20; ++attempt, ::poll(nullptr, 0, 1))
        if (const auto holder = markedHolder(place))
            return holder->error();
    return {"Kinesta is running already."};
}

}  // namespace

Error SingleInstance::Holder::error() const {
    const std::string name = role == Role::application ? "The Kinesta application" : "The Kinesta daemon";
    if (process <= 0)
        return {name + " is running already."};
    const std::string number = std::to_string(process);
    return {name + " is running already, as process " + number + "; to end it: kill " + number};
}

Result<SingleInstance> SingleInstance::claim(const std::filesystem::path& settings, Role role) {
    for (const std::filesystem::path& place : places(settings)) {
        std::error_code ignored;
        std::filesystem::create_directories(place.parent_path(), ignored);
        FileDescriptor lock = openOwn(place, O_CREAT);
        if (!lock)
            continue;
        if (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EWOULDBLOCK)
                return runningAlready(place);
            continue;  // a file system without locks
        }
        FileDescriptor roles = openRoles(place, O_CREAT);
        const struct flock byte = mark(role);
        // Only so that others can tell who runs; the other lock works without it.
        static_cast<void>(::fcntl(roles.number(), F_SETLK, &byte));
        return SingleInstance(std::move(lock), std::move(roles));
    }
    return SingleInstance({}, {});
}

std::optional<SingleInstance::Holder> SingleInstance::holder(const std::filesystem::path& settings) {
    for (const std::filesystem::path& place : places(settings))
        if (const auto holder = markedHolder(place))
            return holder;
    return std::nullopt;
}

}  // namespace kinesta
