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
        /// The report as text, to copy: versions, and the findings without anything personal. Also if there are none.
        std::string text;
        /// Why there are no findings, as a sentence; empty if there are.
        std::string problem;
    };
    using Receive = std::function<void(const Result&)>;

    virtual ~SystemReport() = default;

    /// Calls `receive` once, later, on the main thread. A request while another one is being answered starts over: both
    /// get the newer result.
    virtual void request(Receive receive) = 0;
};

}  // namespace kinesta
