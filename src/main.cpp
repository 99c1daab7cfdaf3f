#include <cerrno>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "cli/CommandLine.h"
#include "platform/posix/BrokenPipes.h"
#include "platform/posix/Terminal.h"
#include "support/NotingBuffer.h"
#include "support/SystemError.h"
#ifdef __APPLE__
#include "platform/macos/MacDesktop.h"
#include "platform/macos/application/MacMainLoop.h"
#else
#include "platform/linux/LinuxDesktop.h"
#include "support/RunLoop.h"
#endif

int main(int argc, char** argv) {
    using namespace kinesta;
    std::ios::sync_with_stdio(false);
    endQuietlyOnClosedPipe();

    NotingBuffer written(*std::cout.rdbuf());
    std::ostream out(&written);
    const bool outIsTerminal = isTerminal(StandardStream::output);
    const char* noColour = std::getenv("NO_COLOR");
    const TerminalSize size = outIsTerminal ? terminalSize(StandardStream::output) : TerminalSize{};
    const Console console{.in = std::cin,
                          .out = out,
                          .err = std::cerr,
                          .outIsTerminal = outIsTerminal,
                          .errIsTerminal = isTerminal(StandardStream::error),
                          .colour = outIsTerminal && (noColour == nullptr || std::string_view(noColour).empty()),
                          .columns = size.columns,
                          .rows = size.rows};
    try {
#ifdef __APPLE__
        MacMainLoop mainLoop;
        MacDesktop desktop(mainLoop, MacProgramFiles::ofThisProcess());
#else
        RunLoop mainLoop;
        LinuxDesktop desktop(mainLoop, LinuxDesktop::Places::current());
#endif
        const ExitStatus status = runCommandLine(console, desktop, argc, argv);
        out.flush();
        if (!out)
            return static_cast<int>(console.fail("Writing to standard output failed: " +
                                                 systemErrorText(written.failure() != 0 ? written.failure() : EIO) +
                                                 "."));
        return static_cast<int>(status);
    } catch (const std::exception& error) {
        // Only failures that cannot be handled arrive here, mainly lack of memory.
        std::cerr << "Kinesta had to give up: " << error.what() << '\n';
        return static_cast<int>(ExitStatus::badInput);
    }
}
