#pragma once

#include <string>

namespace kinesta {

/// The keyboard that a system is set up with, in XKB's names. An empty field means XKB's own default.
struct KeyboardNames {
    std::string model;
    std::string layout;
    std::string variant;
    std::string options;

    /// Reads the file where Debian and its derivatives keep them, as NAME="value" lines in shell syntax. Fields that
    /// are missing or cannot be read stay empty.
    static KeyboardNames read(const std::string& path);
};

}  // namespace kinesta
