#pragma once

#include "app/Desktop.h"
#include "cli/terminal/Console.h"

namespace kinesta {

/// Runs the subcommand that the arguments name. `arguments` are those of main(), the program's name first.
ExitStatus runCommandLine(const Console& console, Desktop& desktop, int count, const char* const* arguments);

}  // namespace kinesta
