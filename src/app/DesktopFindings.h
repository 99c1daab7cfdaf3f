#pragma once

#include <string>

namespace kinesta {

/// What keeps something from working on this machine, and what to do about it: one sentence each.
struct Obstacle {
    std::string why;
    std::string remedy;
};

/// Something that a session may or may not let us do.
enum class DesktopCapability { sendInput, keyboardLayout, windows, open, notify, cue };

/// Whether one capability works, in plain words.
struct DesktopFinding {
    DesktopCapability capability;
    /// "Sending keys and clicks"
    std::string what;
    bool works = false;
    /// How it works, or what prevents it: one or two sentences.
    std::string why;
    /// What the user can do about it; empty if nothing needs to be done.
    std::string remedy;
    /// The command line that the remedy ends with, to be run in a terminal; empty if there is none.
    std::string command = {};
    /// Whether the remedy is to change a setting.
    bool isSetting = false;
};

}  // namespace kinesta
