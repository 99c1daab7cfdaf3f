#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"
#include "rules/SystemGestureWarningChecker.h"

namespace kinesta {

/// What the subcommands work with on this machine.
struct Places {
    /// The person's settings file.
    std::filesystem::path defaults;
    /// The bundled examples.
    std::filesystem::path examples;
    /// The running system, as far as it has gestures of its own.
    GestureSystem system = GestureSystem::none;
};

/// Runs the subcommand that the arguments name. `arguments` are those of main(), the program's name first.
ExitStatus runCommandLine(const Console& console, const Places& places, int count, const char* const* arguments);

}  // namespace kinesta
