#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <utility>

#include "platform/posix/FileDescriptor.h"
#include "support/Result.h"

namespace kinesta {

/// Held by the one process that acts on a user's gestures: two processes would perform each action twice. The system
/// releases it when the process ends, even by a crash.
class SingleInstance {
  public:
    enum class Role { daemon, application };

    /// The process that holds it.
    struct Holder {
        /// 0 if it runs in a container, where its number is not known.
        pid_t process = 0;
        Role role = Role::daemon;

        /// "running already, as process 7; to end it: kill 7", as a sentence.
        Error error() const;
    };

    /// Locks a file in the first of these folders where that is possible: XDG_RUNTIME_DIR, the folder of `settings`,
    /// the folder for temporary files. The error names the process that holds it.
    static Result<SingleInstance> claim(const std::filesystem::path& settings, Role role);

    /// The other process that holds it now. Not for the process that holds it itself: that would lose its role.
    static std::optional<Holder> holder(const std::filesystem::path& settings);

    /// Whether another process is ruled out: false if no file could be locked.
    bool isCertain() const { return static_cast<bool>(m_lock); }

  private:
    SingleInstance(FileDescriptor lock, FileDescriptor role) : m_lock(std::move(lock)), m_role(std::move(role)) {}

    FileDescriptor m_lock;
    FileDescriptor m_role;
};

}  // namespace kinesta
