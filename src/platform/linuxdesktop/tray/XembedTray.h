#pragma once

#include <xcb/xcb.h>

#include <QColor>
#include <QSize>
#include <optional>

namespace kinesta {

/// The tray of an X11 panel: the owner of the selection _NET_SYSTEM_TRAY_Sn. Only passes on what the server says; its
/// owner hands in the events. Main thread only.
class XembedTray {
  public:
    /// How windows in the tray look.
    struct Visual {
        xcb_visualid_t id = XCB_NONE;
        std::uint8_t depth = 0;
        /// Whether the tray shows what is behind transparent pixels. If not, the ground is that of the parent window.
        bool hasAlpha = false;
    };

    XembedTray(xcb_connection_t* connection, xcb_screen_t* screen, int screenNumber);

    /// Looks for the tray. Returns whether there is one.
    bool find();
    void forget() { m_owner = XCB_WINDOW_NONE; }

    /// Whether this event says that another tray has appeared.
    bool isArrival(const xcb_generic_event_t& event) const;
    bool isDeparture(const xcb_generic_event_t& event) const;
    bool isColourChange(const xcb_generic_event_t& event) const;

    Visual visual() const;
    /// That of its texts and symbols, if it says so.
    std::optional<QColor> foreground() const;

    /// Asks it to take in this window, which it may do later or never.
    void dock(xcb_window_t window);

    xcb_atom_t atom(const char* name) const;

  private:
    std::optional<QList<quint32>> property(xcb_atom_t name, xcb_atom_t type) const;

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
    xcb_atom_t m_selection, m_manager, m_opcode, m_visual, m_colours;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
};

}  // namespace kinesta
