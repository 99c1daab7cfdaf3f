#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/SystemCheck.h"

namespace kinesta {

/// The port that finds out what works on this machine without holding up the window. Main thread only.
class SystemReport {
  public:
    struct Result {
        std::vector<SystemFinding> findings;
        /// The report as text, to copy: nothing personal in it.
        std::string text;
        /// Why there is no report; empty if there is one.
        std::string problem;
    };

    virtual ~SystemReport() = default;

    /// Calls `receive` once, later, on the main thread. A second request meanwhile replaces the first.
    virtual void request(std::function<void(const Result&)> receive) = 0;
};

}  // namespace kinesta
