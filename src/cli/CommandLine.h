#pragma once

#include <filesystem>

#include "cli/Console.h"

namespace kinesta {

/// Folders and files that the subcommands work with.
struct Places {
    /// The person's settings file.
    std::filesystem::path defaults;
    /// The bundled examples.
    std::filesystem::path examples;
};

/// Runs the subcommand that the arguments name. `arguments` are those of main(), the program's name first.
ExitStatus runCommandLine(const Console& console, const Places& places, int count, const char* const* arguments);

}  // namespace kinesta
