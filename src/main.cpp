#include <cerrno>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "cli/CommandLine.h"
#include "platform/linux/Examples.h"
#include "platform/linux/process/CurrentDesktop.h"
#include "platform/linux/process/SystemError.h"
#include "platform/linux/process/Terminal.h"
#include "platform/linux/settings/FileUserDefaults.h"

namespace {

kinesta::GestureSystem runningSystem() {
    using kinesta::GestureSystem, kinesta::isCurrentDesktop;
    if (isCurrentDesktop("GNOME"))
        return GestureSystem::gnome;
    return isCurrentDesktop("KDE") ? GestureSystem::kde : GestureSystem::none;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace kinesta;
    std::ios::sync_with_stdio(false);
    endQuietlyOnClosedPipe();

    const bool outIsTerminal = isTerminal(StandardStream::output);
    const char* noColour = std::getenv("NO_COLOR");
    const TerminalSize size = outIsTerminal ? terminalSize(StandardStream::output) : TerminalSize{};
    const Console console{.in = std::cin,
                          .out = std::cout,
                          .err = std::cerr,
                          .outIsTerminal = outIsTerminal,
                          .errIsTerminal = isTerminal(StandardStream::error),
                          .colour = outIsTerminal && (noColour == nullptr || std::string_view(noColour).empty()),
                          .columns = size.columns,
                          .rows = size.rows};
    const Places places{
        .defaults = FileUserDefaults::defaultPath(), .examples = examplesFolder(), .system = runningSystem()};
    try {
        const ExitStatus status = runCommandLine(console, places, argc, argv);
        errno = 0;
        std::cout.flush();
        if (!std::cout)
            return static_cast<int>(console.fail("Writing to standard output failed" +
                                                 (errno != 0 ? ": " + systemErrorText(errno) : std::string()) + "."));
        return static_cast<int>(status);
    } catch (const std::exception& error) {
        // Only what no one can do anything about arrives here: memory, above all.
        std::cerr << "Kinesta had to give up: " << error.what() << '\n';
        return static_cast<int>(ExitStatus::badInput);
    }
}
