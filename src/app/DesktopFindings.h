#pragma once

#include <string>

namespace kinesta {

/// What keeps something from working on this machine, and what to do about it: one sentence each.
struct Obstacle {
    std::string why;
    std::string remedy;
};

/// What a session may or may not let us do.
enum class DesktopCapability { sendInput, keyboardLayout, windows, open, notify };

/// One thing that works or not, in plain words.
struct DesktopFinding {
    DesktopCapability capability;
    /// "Sending keys and clicks"
    std::string what;
    bool works = false;
    /// How it works, or what stands in the way: one or two sentences.
    std::string why;
    /// What the person can do about it; empty if nothing need be done.
    std::string remedy;
};

}  // namespace kinesta
