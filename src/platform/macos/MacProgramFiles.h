#pragma once

#include <filesystem>

namespace kinesta {

/// Where the parts of Kinesta are, seen from the running program: in the bundle Kinesta.app, or in a build tree without
/// the application.
struct MacProgramFiles {
    /// The bundle; empty for a program outside of one.
    std::filesystem::path bundle;
    /// The folder that holds examples and translations.
    std::filesystem::path resources;

    static MacProgramFiles ofThisProcess();
    static MacProgramFiles of(const std::filesystem::path& program);

    /// The command line.
    std::filesystem::path program() const { return bundle / "Contents" / "Helpers" / "kinesta"; }
    std::filesystem::path translations() const { return resources / "translations"; }
    std::filesystem::path examples() const { return resources / "examples"; }
};

}  // namespace kinesta
