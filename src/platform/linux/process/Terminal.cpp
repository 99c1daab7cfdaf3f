#include "platform/linux/process/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string_view>

namespace kinesta {
namespace {

constexpr std::string_view kTake = "\x1b[?1049h\x1b[?25l";
constexpr std::string_view kGiveBack = "\x1b[?25h\x1b[0m\x1b[?1049l";
constexpr std::array kEndingSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

std::array<struct sigaction, kEndingSignals.size()> previousActions;
volatile std::sig_atomic_t isTaken = 0;

void writeAll(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

void take() {
    isTaken = 1;
    writeAll(kTake);
}

void giveBack() {
    // Given back twice, the cursor would jump to where it was the first time.
    if (isTaken != 0)
        writeAll(kGiveBack);
    isTaken = 0;
}

extern "C" void giveTerminalBackAndEnd(int signal) {
    giveBack();
    // SA_RESETHAND has put the default action back: raised again, the signal ends the program as it should.
    static_cast<void>(::raise(signal));
}

}  // namespace

bool isTerminal(StandardStream stream) { return ::isatty(static_cast<int>(stream)) == 1; }

TerminalSize terminalSize(StandardStream stream) {
    winsize size{};
    if (::ioctl(static_cast<int>(stream), TIOCGWINSZ, &size) != 0)
        return {};
    return {size.ws_col, size.ws_row};
}

TerminalTakeover::TerminalTakeover() {
    struct sigaction action {};
    action.sa_handler = giveTerminalBackAndEnd;
    // SA_NODEFER lets the raise above act at once instead of when the handler returns.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i)
        ::sigaction(kEndingSignals[i], &action, &previousActions[i]);
    take();
}

TerminalTakeover::~TerminalTakeover() {
    giveBack();
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i)
        ::sigaction(kEndingSignals[i], &previousActions[i], nullptr);
}

void TerminalTakeover::stopUntilContinued() {
    giveBack();
    kinesta::stopUntilContinued();
    take();
}

void stopUntilContinued() {
    sigset_t stop;
    sigset_t before;
    ::sigemptyset(&stop);
    ::sigaddset(&stop, SIGTSTP);
    // SIGSTOP would not do: the shell tells it from Ctrl-Z, and it stops also where no shell could continue.
    static_cast<void>(::raise(SIGTSTP));
    ::pthread_sigmask(SIG_UNBLOCK, &stop, &before);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void endQuietlyOnClosedPipe() { static_cast<void>(::signal(SIGPIPE, SIG_DFL)); }

}  // namespace kinesta
