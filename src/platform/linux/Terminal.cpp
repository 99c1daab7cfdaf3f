#include "platform/linux/Terminal.h"

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

void writeAll(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

extern "C" void giveTerminalBackAndEnd(int signal) {
    writeAll(kGiveBack);
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
    writeAll(kTake);
}

TerminalTakeover::~TerminalTakeover() {
    writeAll(kGiveBack);
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i)
        ::sigaction(kEndingSignals[i], &previousActions[i], nullptr);
}

void endQuietlyOnClosedPipe() { static_cast<void>(::signal(SIGPIPE, SIG_DFL)); }

}  // namespace kinesta
