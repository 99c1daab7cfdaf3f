#pragma once

#include <string>

#include "support/Seconds.h"

namespace kinesta {

/// The port that finds out what came of an action on windows. Main thread only.
class WindowActionOutcomes {
  public:
    enum class Outcome {
        /// The window manager was not asked for anything.
        nothingAsked,
        /// It was asked, and left the window as it was.
        ignored,
        /// It was asked and the result is open: the window may be asking the person before it closes, or it went
        /// elsewhere than requested.
        asked,
        done,
    };
    enum class Kind { close, tile, untile };

    virtual ~WindowActionOutcomes() = default;

    /// Forgets earlier requests and watches for new ones.
    virtual void begin() = 0;

    /// The outcome of all requests since begin(). Waits for it at most `patience` seconds.
    virtual Outcome settle(Seconds patience) = 0;

    /// Why nothing was asked for, as one sentence, judged by the present state of the desktop.
    virtual std::string obstacle(Kind kind) = 0;
};

}  // namespace kinesta
