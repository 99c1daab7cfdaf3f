#pragma once

#include <sys/types.h>

#include <chrono>

#include "platform/posix/FileDescriptor.h"

namespace kinesta {

/// A running process that is no child of ours, held so that its number cannot come to mean another one.
class OtherProcess {
  public:
    explicit OtherProcess(pid_t number);

    /// False if there was no such process.
    explicit operator bool() const { return static_cast<bool>(m_process); }

    void signal(int signal) const;
    /// Returns whether it has ended, or ended within the time. True if there was none.
    bool waitForEnd(std::chrono::milliseconds patience) const;

  private:
    FileDescriptor m_process;
};

}  // namespace kinesta
