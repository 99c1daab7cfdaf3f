#pragma once

#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kinesta::vm {

/// Makes the calling thread, and threads that it starts meanwhile, an ordinary person's. The raw system call: the C
/// library's would change all threads.
class AsNobody {
  public:
    AsNobody() { become(65534); }
    ~AsNobody() { become(0); }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

  private:
    static void become(uid_t user) { ASSERT_EQ(syscall(SYS_setresuid, user, user, 0), 0); }
};

}  // namespace kinesta::vm
