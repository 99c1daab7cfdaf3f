#pragma once

#include <string>
#include <vector>

#include "support/Result.h"

namespace kinesta {

/// What a desktop file (*.desktop) says about starting its application.
struct DesktopEntry {
    /// The program and its arguments. Places that the file keeps for documents are left out: none is handed over.
    std::vector<std::string> command;
    /// Empty: none is asked for.
    std::string workingDirectory;
    bool runsInTerminal = false;

    /// Reads a desktop file. `locale` ("de_DE.UTF-8", as in LC_MESSAGES) chooses the name, which some programs want to
    /// be told.
    static Result<DesktopEntry> read(const std::string& path, const std::string& locale);
};

}  // namespace kinesta
