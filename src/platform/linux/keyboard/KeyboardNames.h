#pragma once

#include <string>

namespace kinesta {

/// The keyboard that a system is set up with, in the words of XKB. An empty field stands for XKB's own default.
struct KeyboardNames {
    std::string model;
    std::string layout;
    std::string variant;
    std::string options;

    /// Reads the file in which Debian and its kin keep them, NAME="value" lines as a shell would read them. What is
    /// missing or cannot be read stays empty.
    static KeyboardNames read(const std::string& path);
};

}  // namespace kinesta
