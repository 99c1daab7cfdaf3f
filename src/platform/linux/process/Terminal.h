#pragma once

namespace kinesta {

/// One of the three standard streams.
enum class StandardStream { input = 0, output = 1, error = 2 };

bool isTerminal(StandardStream stream);

/// The terminal's width and height in characters; 0 where it is not known.
struct TerminalSize {
    int columns = 0;
    int rows = 0;
};
TerminalSize terminalSize(StandardStream stream);

/// Hides the cursor and switches to the terminal's second screen for as long as it lives, and puts both back however
/// the program ends: by itself, or by SIGINT, SIGTERM, SIGHUP or SIGQUIT, which then do what they always do. At most
/// one at a time.
class TerminalTakeover {
  public:
    TerminalTakeover();
    ~TerminalTakeover();
    TerminalTakeover(const TerminalTakeover&) = delete;
    TerminalTakeover& operator=(const TerminalTakeover&) = delete;

    /// Stops the program as below, with the terminal given back meanwhile.
    void stopUntilContinued();
};

/// Stops the program as SIGTSTP does and returns when it goes on. For whoever is told of that signal by a
/// SignalListener instead of being stopped.
void stopUntilContinued();

/// Lets a closed pipe end the program without a word, whatever the parent process left SIGPIPE set to.
void endQuietlyOnClosedPipe();

}  // namespace kinesta
