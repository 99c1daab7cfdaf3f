#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "desktop/harness/ChildProcess.h"
#include "support/TableRows.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {

/// A program that records its arguments, byte for byte, and its working directory.
class LaunchedProgram {
  public:
    explicit LaunchedProgram(const TemporaryFolder& folder, const std::string& name = "a program")
        // The file with the arguments is renamed into place when it is complete.
        : m_path(folder.write(name,
                              "#!/bin/sh\npwd > \"$0.folder\"\nfor a; do printf '%s\\0' \"$a\"; done > \"$0.new\"\n"
                              "mv \"$0.new\" \"$0.arguments\"\n")) {
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
    }

    const std::string& path() const { return m_path; }

    /// The arguments of its next start.
    std::vector<std::string> waitForArguments() const {
        const std::string file = m_path + ".arguments";
        EXPECT_TRUE(eventually([&] { return std::filesystem::exists(file); })) << "not started";
        auto arguments = split(readText(file), std::string(1, '\0'));
        arguments.pop_back();  // after the last NUL
        std::filesystem::remove(file);
        return arguments;
    }

    /// The working directory of the start that was waited for.
    std::string workingDirectory() const { return readText(m_path + ".folder"); }

  private:
    std::string m_path;
};

}  // namespace kinesta::testing
