#pragma once

#include <filesystem>

#include "cli/terminal/Console.h"

namespace kinesta {

enum class LogLevel { gestures, everything };

/// `kinesta daemon`: recognition, rules and actions without any window, until SIGTERM or Ctrl-C. SIGHUP, and a change
/// of the settings file by anyone, reload rules and settings. Says in one line each what was recognized and which
/// rule ran, or why none did.
ExitStatus runDaemon(const Console& console, const std::filesystem::path& defaults, LogLevel level);

}  // namespace kinesta
