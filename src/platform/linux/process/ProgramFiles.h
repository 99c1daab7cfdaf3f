#pragma once

#include <filesystem>

namespace kinesta {

/// Where the parts of Kinesta are, seen from the running program: the same in a build tree and under any prefix.
struct ProgramFiles {
    /// The folder that holds bin, libexec and share.
    std::filesystem::path prefix;

    static ProgramFiles ofThisProcess();

    /// The command line and daemon. Without a subcommand it becomes the application.
    std::filesystem::path program() const { return prefix / "bin" / "kinesta"; }
    std::filesystem::path application() const { return prefix / "libexec" / "kinesta" / "kinesta-application"; }
    std::filesystem::path updater() const { return prefix / "libexec" / "kinesta" / "kinesta-updater"; }
    /// What the build says about itself; missing in development builds.
    std::filesystem::path bundle() const { return prefix / "share" / "kinesta" / "bundle.json"; }
    std::filesystem::path translations() const { return prefix / "share" / "kinesta" / "translations"; }
    std::filesystem::path examples() const { return prefix / "share" / "kinesta" / "examples"; }
};

}  // namespace kinesta
