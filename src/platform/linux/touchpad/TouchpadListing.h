#pragma once

#include <optional>
#include <string>
#include <vector>

#include "input/evdev/EvdevFrameAssembler.h"
#include "platform/linux/touchpad/TouchpadCandidate.h"

namespace kinesta {

/// A touchpad of this machine, described for the user.
struct ListedTouchpad {
    TouchpadCandidate candidate;
    /// Whether it is the one that is read.
    bool isChosen = false;
    /// Axis ranges and slots; absent if the pad may not be read.
    std::optional<EvdevTouchpad> touchpad;
    bool canTellPressure = false;
    /// Whether the desktop may have switched it off without a way for us to find out.
    bool mayBeOff = false;
    /// How many fingers it reports at once; 0 if that is not known.
    int fingers = 0;
    /// One sentence on why it cannot be read; empty if it can.
    std::string problem;
    /// The command line that lets this person read it, if that is what is missing.
    std::string command;
};

/// All touchpads. Opens each for a moment. `wanted` is the setting that names the one to read.
std::vector<ListedTouchpad> listTouchpads(const std::string& wanted = {});

}  // namespace kinesta
