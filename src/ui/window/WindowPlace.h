#pragma once

#include <QRect>
#include <QWidget>
#include <optional>
#include <string>

#include "support/UserDefaults.h"

namespace kinesta {

/// Remembers where the window was and how large, and the width of its sidebar.
class WindowPlace {
  public:
    /// The value is "x y width height sidebar", in logical pixels, and "maximized" behind it if it was.
    static constexpr std::string_view storageKey = "configurationWindow.v1";

    explicit WindowPlace(UserDefaults& defaults) : m_defaults(defaults) {}

    /// Puts the window where it was, moved onto a screen that exists. Returns the width of the sidebar; nothing if
    /// nothing was remembered: then the window only shrinks to the screen.
    std::optional<int> restore(QWidget& window) const;
    /// Does nothing if nothing has changed.
    void save(const QWidget& window, int sidebar);
    /// Moves the window onto a screen if its upper edge is on none: the screen it was on may be gone.
    static void bringBack(QWidget& window);

  private:
    struct Stored {
        QRect box;
        int sidebar = 0;
        bool isMaximized = false;
    };
    std::optional<Stored> stored() const;

    UserDefaults& m_defaults;
};

}  // namespace kinesta
