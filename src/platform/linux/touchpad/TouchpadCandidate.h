#pragma once

#include <span>
#include <string>

namespace kinesta {

/// A touchpad that the system knows, as far as can be told without opening it.
struct TouchpadCandidate {
    /// "/dev/input/event5".
    std::string path;
    /// "input12": how the kernel counts its input devices. Unlike the path never used twice, so that a pad that came
    /// back is told from one that stayed.
    std::string inputName;
    std::string name;
    bool isBuiltIn = false;

    friend bool operator==(const TouchpadCandidate&, const TouchpadCandidate&) = default;
};

/// The touchpad to read, or null. `wanted` is the path or the name of one, or empty for any: then a built-in one goes
/// first. Among equals the one that is read already (`currentInputName`) stays, else the one that was there first.
const TouchpadCandidate* chooseTouchpad(std::span<const TouchpadCandidate> candidates, const std::string& wanted,
                                        const std::string& currentInputName);

/// What to tell a person when there is none to read: one sentence.
std::string noTouchpadMessage(const std::string& wanted);

}  // namespace kinesta
