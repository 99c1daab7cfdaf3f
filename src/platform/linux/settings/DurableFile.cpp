#include "platform/linux/settings/DurableFile.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <climits>

#include "support/SystemError.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using Steady = std::chrono::steady_clock;

constexpr std::chrono::seconds kLongestWait(2);
constexpr off_t kLargestFile = off_t{64} << 20;  // settings and rules take kilobytes
constexpr int kMostLinks = 40;                   // as many as the kernel follows

// Names of the content on its way into the file.
constexpr const char* kBeingWritten = ".new";
constexpr const char* kStaged = ".next";
constexpr const char* kOnItsWay = ".tmp";

Error failure(const std::string& path, int reason) { return {path + ": " + systemErrorText(reason)}; }

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

Outcome synchronizeFolder(const std::string& folder) {
    const FileDescriptor file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some network file systems cannot synchronize a folder and need not: they answer EINVAL.
    if (!file || (::fsync(file.number()) != 0 && errno != EINVAL))
        return failure(folder, errno);
    return success();
}

Outcome createFolder(const std::string& folder) {
    if (::mkdir(folder.c_str(), S_IRWXU) == 0)
        return synchronizeFolder(folderOf(folder));
    if (errno == EEXIST)
        return success();
    const std::string parent = folderOf(folder);
    if (errno != ENOENT || parent == folder)
        return failure(folder, errno);
    if (Outcome outcome = createFolder(parent); !outcome)
        return outcome;
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return failure(folder, errno);
    return synchronizeFolder(parent);
}

/// 0, or the reason why not everything was written.
int writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(file, content.data(), content.size());
        if (written >= 0)
            content.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

/// Locks an open file. Returns 0 or the reason why not.
int waitForLock(const FileDescriptor& file, Steady::time_point deadline) {
    while (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR && (errno != EWOULDBLOCK || Steady::now() >= deadline))
            return errno;
        ::poll(nullptr, 0, 1);
    }
    return 0;
}

}  // namespace

DurableFile::DurableFile(std::string path) : m_path(std::move(path)), m_folder(folderOf(m_path)) {}

Result<DurableFile> DurableFile::at(std::string path) {
    // By hand: realpath() fails for a link whose target does not exist yet.
    const std::string start = path;
    for (int links = 0; links <= kMostLinks; ++links) {
        std::array<char, PATH_MAX> target;
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0)
            return DurableFile(std::move(path));  // not a link; other errors show when the file is used
        const std::string_view next(target.data(), static_cast<std::size_t>(length));
        path = next.starts_with('/') ? std::string(next) : folderOf(path) + "/" + std::string(next);
    }
    return failure(start, ELOOP);
}

Result<std::optional<std::string>> DurableFile::read() const {
    // O_NONBLOCK: a pipe in place of the file must not block the program.
    const FileDescriptor file(::open(m_path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file && errno == ENOENT)
        return std::optional<std::string>();
    struct stat status {};
    if (!file || ::fstat(file.number(), &status) != 0)
        return failure(m_path, errno);
    if (S_ISDIR(status.st_mode))
        return failure(m_path, EISDIR);
    if (!S_ISREG(status.st_mode))
        return Error{m_path + ": Not a regular file"};
    if (status.st_size > kLargestFile)
        return Error{m_path + ": Larger than 64 MiB"};

    std::string content(static_cast<std::size_t>(status.st_size) + 1, '\0');  // one more, to see the end at once
    std::size_t size = 0;
    for (;;) {
        const ssize_t count = ::read(file.number(), content.data() + size, content.size() - size);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return failure(m_path, errno);
        size += static_cast<std::size_t>(count < 0 ? 0 : count);
        if (size == content.size())
            content.resize(2 * size);
    }
    content.resize(size);
    return std::optional(std::move(content));
}

Result<FileDescriptor> DurableFile::lock() const {
    if (const Outcome outcome = createFolder(m_folder); !outcome)
        return outcome.error();
    const std::string path = m_path + ".lock";
    FileDescriptor file(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file)
        return failure(path, errno);
    // Others hold the lock for milliseconds. A process that was stopped while holding it must not block this one.
    const auto deadline = Steady::now() + kLongestWait;
    // While waiting for the file's lock, this process holds the folder's lock. A process that saves again and again
    // then has to queue too. Folders of some network file systems cannot be locked; then there is no queue.
    const FileDescriptor turn(::open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    static_cast<void>(waitForLock(turn, deadline));
    const int reason = waitForLock(file, deadline);
    if (reason == EWOULDBLOCK)
        return Error{m_path + ": " + translated("another program has been writing it for too long")};
    if (reason != 0)
        return failure(path, reason);
    return file;
}

Outcome DurableFile::replace(std::string_view content) const {
    const Outcome staged = stage(content);
    return staged ? commit() : staged;
}

Outcome DurableFile::stage(std::string_view content) const {
    // One name is enough, because only the holder of the lock writes. If the file already exists, a killed process has
    // left it.
    const std::string temporary = m_path + kBeingWritten;
    ::unlink(temporary.c_str());
    const FileDescriptor file(
        ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file)
        return failure(temporary, errno);
    int reason = writeAll(file.number(), content);
    if (reason == 0 && ::rename(temporary.c_str(), (m_path + kStaged).c_str()) != 0)
        reason = errno;
    if (reason == 0)
        return success();
    ::unlink(temporary.c_str());
    return failure(m_path, reason);
}

Outcome DurableFile::commit() const {
    // A name of its own: another content may be staged while this one is on its way.
    const std::string temporary = m_path + kOnItsWay;
    if (::rename((m_path + kStaged).c_str(), temporary.c_str()) != 0)
        return errno == ENOENT ? success() : failure(m_path, errno);
    const FileDescriptor file(::open(temporary.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (!file || ::fsync(file.number()) != 0 || ::rename(temporary.c_str(), m_path.c_str()) != 0) {
        const int reason = errno;
        ::unlink(temporary.c_str());
        return failure(m_path, reason);
    }
    return synchronizeFolder(m_folder);
}

bool DurableFile::hasStaged() const {
    const auto exists = [this](const char* suffix) { return ::access((m_path + suffix).c_str(), F_OK) == 0; };
    return exists(kStaged) || exists(kOnItsWay) || exists(kBeingWritten);
}

Outcome DurableFile::recover(const std::function<bool(const std::string& content)>& isWhole) const {
    ::unlink((m_path + kBeingWritten).c_str());
    for (const char* suffix : {kStaged, kOnItsWay}) {  // the newest first
        const std::string name = m_path + suffix;
        const auto content = DurableFile(name).read();
        if (content && *content && isWhole(**content)) {
            if (::rename(name.c_str(), (m_path + kStaged).c_str()) != 0)
                return failure(name, errno);
            return commit();
        }
        ::unlink(name.c_str());
    }
    return success();
}

Result<std::string> DurableFile::setAside() const {
    for (int number = 1;; ++number) {
        const std::string name = m_path + ".damaged-" + std::to_string(number);
        struct stat status {};
        if (::lstat(name.c_str(), &status) == 0)
            continue;
        if (errno != ENOENT || ::rename(m_path.c_str(), name.c_str()) != 0)
            return failure(m_path, errno);
        if (const Outcome outcome = synchronizeFolder(m_folder); !outcome)
            return outcome.error();
        return name;
    }
}

}  // namespace kinesta
