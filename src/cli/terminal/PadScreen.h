#pragma once

#include <deque>
#include <optional>
#include <string>

#include "app/Desktop.h"
#include "cli/terminal/Console.h"
#include "cli/terminal/PadPicture.h"
#include "input/PadEvent.h"

namespace kinesta {

/// The whole terminal as a window on the pad: a title, the picture, and the last gestures. Takes the terminal while it
/// lives.
class PadScreen {
  public:
    /// Whether the terminal is large enough for it.
    static bool fits(const Console& console);

    PadScreen(const Console& console, Desktop& desktop);
    ~PadScreen() { m_desktop.giveTerminalBack(); }
    PadScreen(const PadScreen&) = delete;
    PadScreen& operator=(const PadScreen&) = delete;

    void setTitle(std::string title, std::string detail);
    /// Takes a frame or a press and draws. Draws a mere movement only if the last drawing was more than a moment ago.
    void show(const PadEvent& event);
    /// Shows a gesture and its consequence.
    void tell(std::string gesture, std::string consequence);

    void draw();
    /// Stops the program, as Ctrl-Z asks for, with the terminal as it was before; draws again when it goes on.
    void stopUntilContinued();

  private:
    const Console& m_console;
    Desktop& m_desktop;
    PadPicture m_picture;
    std::string m_title;
    std::string m_detail;
    Seconds m_now = 0;
    Seconds m_drawnAt = -1e300;
    std::size_t m_contactCount = 0;

    struct ShownGesture {
        std::string gesture;
        std::string consequence;
    };
    std::deque<ShownGesture> m_gestures;
};

}  // namespace kinesta
