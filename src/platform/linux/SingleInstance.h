#pragma once

#include <filesystem>
#include <utility>

#include "platform/linux/FileDescriptor.h"
#include "support/Result.h"

namespace kinesta {

/// Held by the one process that acts on a person's gestures: two would perform each action twice. Given up when the
/// process ends, however it does.
class SingleInstance {
  public:
    /// Claims it for the person's session (XDG_RUNTIME_DIR), or for the machines that share `settings` where there is
    /// no such folder. The error names the process that has it.
    static Result<SingleInstance> claim(const std::filesystem::path& settings);

  private:
    explicit SingleInstance(FileDescriptor lock) : m_lock(std::move(lock)) {}

    FileDescriptor m_lock;
};

}  // namespace kinesta
