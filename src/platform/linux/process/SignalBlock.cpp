#include "platform/linux/process/SignalBlock.h"

#include <csignal>
#include <initializer_list>

namespace kinesta {

void blockProgramSignals() {
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGUSR1})
        ::sigaddset(&set, signal);
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

}  // namespace kinesta
