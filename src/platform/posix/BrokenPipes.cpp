#include "platform/posix/BrokenPipes.h"

#include <csignal>

namespace kinesta {

void endQuietlyOnClosedPipe() { static_cast<void>(std::signal(SIGPIPE, SIG_DFL)); }

void surviveBrokenPipes() {
    struct sigaction current {};
    if (sigaction(SIGPIPE, nullptr, &current) == 0 && current.sa_handler == SIG_DFL)
        static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
}

}  // namespace kinesta
