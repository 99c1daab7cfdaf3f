#pragma once

#include <filesystem>
#include <utility>

#include "platform/linux/process/FileDescriptor.h"
#include "support/Result.h"

namespace kinesta {

/// Held by the one process that acts on a person's gestures: two would perform each action twice. Given up when the
/// process ends, however it does.
class SingleInstance {
  public:
    /// Claims it with a file in the first of these folders that takes one: that of the person's session
    /// (XDG_RUNTIME_DIR), that of `settings`, that for temporary files. The error names the process that has it.
    static Result<SingleInstance> claim(const std::filesystem::path& settings);

    /// Whether it is certain that there is no other: not where no folder took a file.
    bool isCertain() const { return static_cast<bool>(m_lock); }

  private:
    explicit SingleInstance(FileDescriptor lock) : m_lock(std::move(lock)) {}

    FileDescriptor m_lock;
};

}  // namespace kinesta
