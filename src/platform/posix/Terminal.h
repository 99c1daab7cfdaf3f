#pragma once

namespace kinesta {

/// One of the three standard streams.
enum class StandardStream { input = 0, output = 1, error = 2 };

bool isTerminal(StandardStream stream);

/// The terminal's width and height in characters; 0 if unknown.
struct TerminalSize {
    int columns = 0;
    int rows = 0;
};
TerminalSize terminalSize(StandardStream stream);

/// Hides the cursor and shows the terminal's second screen until it is destroyed. Restores both at the end of the
/// program too, whether it returns or gets SIGINT, SIGTERM, SIGHUP or SIGQUIT, which then have their usual effect. At
/// most one at a time.
class TerminalTakeover {
  public:
    TerminalTakeover();
    ~TerminalTakeover();
    TerminalTakeover(const TerminalTakeover&) = delete;
    TerminalTakeover& operator=(const TerminalTakeover&) = delete;

    /// Like stopUntilContinued() below, but restores the terminal meanwhile.
    void stopUntilContinued();
};

/// Stops the program as SIGTSTP does and returns when it continues. For programs in which a SignalListener takes that
/// signal.
void stopUntilContinued();

}  // namespace kinesta
