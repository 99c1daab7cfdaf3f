#pragma once

#include "platform/posix/FileDescriptor.h"

namespace kinesta {

/// Wakes a thread that waits in poll(): what it waits for becomes readable and stays so.
class WakePipe {
  public:
    WakePipe();

    /// The descriptor to wait for.
    int number() const { return m_end.number(); }

    /// Any thread.
    void wake() const;

  private:
    FileDescriptor m_end;
    FileDescriptor m_start;
};

}  // namespace kinesta
