#include "support/MainThread.h"

#include <cstdio>
#include <cstdlib>

namespace kinesta {

std::chrono::nanoseconds wholeNanoseconds(Seconds delay) {
    const double nanoseconds = delay * 1e9;
    if (!(nanoseconds >= 0 && nanoseconds < 0x1p63)) {  // written so that NaN fails too
        std::fprintf(stderr, "kinesta: a delay of %g s is out of range\n", delay);
        std::abort();
    }
    return std::chrono::nanoseconds(static_cast<std::chrono::nanoseconds::rep>(nanoseconds));
}

}  // namespace kinesta
