#pragma once

#include <deque>
#include <optional>
#include <string>

#include "app/Desktop.h"
#include "cli/terminal/Console.h"
#include "cli/terminal/PadPicture.h"
#include "input/PadEvent.h"

namespace kinesta {

/// A view of the pad that fills the terminal: a title, the picture, and the last gestures. Holds the terminal until it
/// is destroyed.
class PadScreen {
  public:
    /// Whether the terminal is large enough for it.
    static bool fits(const Console& console);

    PadScreen(const Console& console, Desktop& desktop);
    ~PadScreen() { m_desktop.giveTerminalBack(); }
    PadScreen(const PadScreen&) = delete;
    PadScreen& operator=(const PadScreen&) = delete;

    void setTitle(std::string title, std::string detail);
    /// Takes a frame or a press and draws. Movements are drawn at a limited rate.
    void show(const PadEvent& event);
    /// Shows a gesture and what it leads to.
    void tell(std::string gesture, std::string consequence);

    void draw();
    /// Restores the terminal and stops the program, as Ctrl-Z asks for. Draws again when the program continues.
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
