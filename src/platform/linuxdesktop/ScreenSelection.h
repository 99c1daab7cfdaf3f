#pragma once

#include <xcb/xcb.h>

#include <QByteArray>

namespace kinesta {

/// A selection of the X screen: its owner serves the screen as the selection's name says.
class ScreenSelection {
  public:
    /// `name` goes before the number of the screen, such as "_NET_WM_CM_S".
    explicit ScreenSelection(const QByteArray& name);

    /// XCB_ATOM_NONE without an X server.
    xcb_atom_t atom() const { return m_atom; }
    /// Asks the server, in a fraction of a millisecond.
    bool isOwned() const;

    /// Qt's connection to the X server; null on another platform.
    static xcb_connection_t* connection();

  private:
    xcb_atom_t m_atom = XCB_ATOM_NONE;
};

}  // namespace kinesta
