#pragma once

#include <span>
#include <string>

namespace kinesta {

/// A touchpad that the system knows, as described without opening it.
struct TouchpadCandidate {
    /// "/dev/input/event5".
    std::string path;
    /// "input12": the kernel's number of the device. Unlike the path it is never reused, so a pad that was reconnected
    /// differs from one that stayed.
    std::string inputName;
    std::string name;
    bool isBuiltIn = false;

    friend bool operator==(const TouchpadCandidate&, const TouchpadCandidate&) = default;
};

/// The touchpad to read, or null. `wanted` is its path or name, or empty for any, with built-in ones preferred. Among
/// equals the current one (`currentInputName`) stays, else the oldest wins.
const TouchpadCandidate* chooseTouchpad(std::span<const TouchpadCandidate> candidates, const std::string& wanted,
                                        const std::string& currentInputName);

/// The sentence for the user when there is none to read.
std::string noTouchpadMessage(const std::string& wanted);

}  // namespace kinesta
