#include "platform/posix/BrokenPipes.h"

#include <csignal>

namespace kinesta {
namespace {

/// Unlike a signal that is ignored, one with a handler is back at its default in the programs that this one starts.
extern "C" void letWriteFail(int) {}

}  // namespace

void endQuietlyOnClosedPipe() { static_cast<void>(std::signal(SIGPIPE, SIG_DFL)); }

void surviveBrokenPipes() {
    struct sigaction action {};
    if (sigaction(SIGPIPE, nullptr, &action) != 0 || action.sa_handler != SIG_DFL)
        return;
    action.sa_handler = letWriteFail;
    action.sa_flags = SA_RESTART;
    sigaction(SIGPIPE, &action, nullptr);
}

}  // namespace kinesta
