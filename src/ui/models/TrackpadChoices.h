#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/LiveTrackpad.h"

namespace kinesta {

/// The trackpads among which a person can choose the one that is read.
struct TrackpadChoices {
    struct Choice {
        /// As the setting names it; empty for the first choice, which takes a built-in trackpad, else any.
        std::string stored;
        std::string title;
        /// Why it cannot be read and what to do; empty if it can.
        std::string problem;

        friend bool operator==(const Choice&, const Choice&) = default;
    };

    std::vector<Choice> all;
    std::size_t chosen = 0;
    /// One sentence about the chosen one.
    std::string detail;

    /// Whether there is anything to choose.
    bool isOffered() const { return all.size() > 2 || chosen > 0; }

    /// `wanted` is the stored path or name, or empty.
    static TrackpadChoices of(const ConnectedTrackpads& connected, const std::string& wanted);

    friend bool operator==(const TrackpadChoices&, const TrackpadChoices&) = default;
};

}  // namespace kinesta
