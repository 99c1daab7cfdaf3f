#pragma once

#include <string>

#include "support/Seconds.h"

namespace kinesta {

/// The port that finds out what an action did to windows. Main thread only.
class WindowActionOutcomes {
  public:
    enum class Outcome {
        /// The window manager was not asked for anything.
        nothingAsked,
        /// It was asked, and left the window as it was.
        ignored,
        /// It was asked, but the result is uncertain: the window may ask the user before it closes, or it moved
        /// elsewhere than requested.
        asked,
        done,
        /// The system does not tell.
        unknown,
    };
    enum class Kind { close, tile, untile };

    virtual ~WindowActionOutcomes() = default;

    /// Forgets earlier requests and watches for new ones.
    virtual void begin() = 0;

    /// The outcome of all requests since begin(). Waits for it at most `patience` seconds.
    virtual Outcome settle(Seconds patience) = 0;

    /// Why nothing was requested, as one sentence, judged by the current state of the desktop.
    virtual std::string obstacle(Kind kind) = 0;
};

}  // namespace kinesta
