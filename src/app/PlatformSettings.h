#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kinesta {

/// A setting that only this platform has: one choice among a few, stored as a string.
struct PlatformChoice {
    struct Case {
        std::string rawValue;
        std::string title;
        /// One sentence on what it means.
        std::string detail;
    };

    std::string_view key;
    std::string name;
    /// The first one holds while nothing, or something unknown, is stored.
    std::vector<Case> cases;
};

/// What can be set on this platform alone.
struct PlatformSettings {
    std::vector<PlatformChoice> choices;
    /// Where the path or name of the trackpad to read is stored. Empty if the platform offers no choice.
    std::string_view trackpadKey;
};

}  // namespace kinesta
