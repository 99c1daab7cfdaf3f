#pragma once

#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstddef>
#include <string>

namespace kinesta::vm {

/// Runs `work` without root's rights in the calling thread and those that it starts. Uses the raw system call, because
/// the C library's function changes all threads.
template <typename Work>
void asOrdinaryUser(Work work) {
    syscall(SYS_setresuid, 65534, 65534, 0);
    work();
    syscall(SYS_setresuid, 0, 0, 0);
}

/// How often the calling thread has called `new`.
std::size_t allocationsOfThisThread();

/// What /proc says about a process.
struct ProcessFigures {
    explicit ProcessFigures(pid_t process);

    long sleeps = 0;         // how often its threads have blocked, together
    long cpuHundredths = 0;  // of a second
    long residentKilobytes = 0;
    long descriptors = 0;
};

}  // namespace kinesta::vm
