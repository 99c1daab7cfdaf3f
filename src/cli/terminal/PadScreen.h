#pragma once

#include <deque>
#include <optional>
#include <string>

#include "cli/terminal/Console.h"
#include "cli/terminal/PadPicture.h"
#include "input/PadEvent.h"
#include "platform/linux/process/Terminal.h"

namespace kinesta {

/// The whole terminal as a window on the pad: a title, the picture, what was recognized last, and what was before.
/// Holds the terminal for as long as it lives.
class PadScreen {
  public:
    /// Whether the terminal is large enough for it.
    static bool fits(const Console& console);

    explicit PadScreen(const Console& console);

    void setTitle(std::string title, std::string detail);
    /// Takes a frame or a press and draws; a mere movement only if the last drawing was more than a moment ago.
    void show(const PadEvent& event);
    /// Tells a gesture and what comes of it, both as they are shown.
    void tell(std::string gesture, std::string consequence);
    /// Draws what there is.
    void draw();
    /// Stops the program, as Ctrl-Z asks for, with the terminal as it was before; draws again when it goes on.
    void stopUntilContinued();

  private:
    const Console& m_console;
    TerminalTakeover m_terminal;
    PadPicture m_picture;
    std::string m_title;
    std::string m_detail;
    Seconds m_now = 0;
    Seconds m_drawnAt = -1e300;
    std::size_t m_contactCount = 0;

    struct Told {
        std::string gesture;
        std::string consequence;
    };
    std::deque<Told> m_told;
};

}  // namespace kinesta
