#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "support/TemporaryFolder.h"

namespace kinesta::testing {

/// A program that tells a test the arguments it was started with, byte for byte, and where.
class LaunchedProgram {
  public:
    explicit LaunchedProgram(const TemporaryFolder& folder, const std::string& name = "a program");

    const std::string& path() const { return m_path; }

    /// The arguments of its next start; one word that says so if it is not started.
    std::vector<std::string> waitForArguments() const;

    /// The working directory of the start that was waited for.
    std::string workingDirectory() const;

  private:
    std::string m_path;
};

}  // namespace kinesta::testing
