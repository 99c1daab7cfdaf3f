#pragma once

#include <string>
#include <vector>

#include "platform/linux/launching/DesktopFile.h"
#include "support/Result.h"

namespace kinesta {

/// What a desktop file (*.desktop) says about starting its application.
struct DesktopEntry {
    /// The program and its arguments, without the placeholders for documents.
    std::vector<std::string> command;
    /// Empty if the file names none.
    std::string workingDirectory;
    bool runsInTerminal = false;

    /// Reads a desktop file. `locale` ("de_DE.UTF-8", as in LC_MESSAGES) chooses the name, which some programs take as
    /// an argument.
    static Result<DesktopEntry> read(const std::string& path, const std::string& locale);
    /// The same for a file that was read from `path`.
    static Result<DesktopEntry> of(const DesktopFile& file, const std::string& path, const std::string& locale);
};

}  // namespace kinesta
