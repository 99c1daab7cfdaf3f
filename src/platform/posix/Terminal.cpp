#include "platform/posix/Terminal.h"

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
    // Only once: the second time would move the cursor back to its position at the first.
    if (isTaken != 0)
        writeAll(kGiveBack);
    isTaken = 0;
}

extern "C" void giveTerminalBackAndEnd(int signal) {
    giveBack();
    // SA_RESETHAND has restored the default action, so the signal now ends the program.
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
    // With SA_NODEFER the raise above acts at once, not when the handler returns.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i) {
        ::sigaction(kEndingSignals[i], nullptr, &previousActions[i]);
        // A handler that is there already ends the program in order.
        if (previousActions[i].sa_handler == SIG_DFL)
            ::sigaction(kEndingSignals[i], &action, nullptr);
    }
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
    sigemptyset(&stop);
    sigaddset(&stop, SIGTSTP);
    // Not SIGSTOP: shells treat it unlike Ctrl-Z, and it also stops a program that no shell can continue.
    static_cast<void>(::raise(SIGTSTP));
    ::pthread_sigmask(SIG_UNBLOCK, &stop, &before);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

}  // namespace kinesta
