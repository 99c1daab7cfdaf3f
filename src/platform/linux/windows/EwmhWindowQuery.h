#pragma once

#include <array>
#include <optional>

#include "platform/linux/windows/EwmhWindow.h"
#include "platform/linux/x11/X11Connection.h"

namespace kinesta {

/// All queries about one window, sent together, so that many windows cost one round trip.
class EwmhWindowQuery {
  public:
    /// Sends the queries. Call after X11Connection::prepare().
    EwmhWindowQuery(X11Connection& connection, EwmhWindowId window);

    EwmhWindowId window() const { return m_window; }

    /// The answers; nothing if the window is gone or they do not come in time. Call exactly once.
    std::optional<EwmhWindow> answer(Deadline deadline);

  private:
    static void readStates(EwmhWindow& window, const xcb_ewmh_connection_t& atoms,
                           const std::vector<std::uint32_t>& states);
    static void readAllowedActions(EwmhWindow& window, const xcb_ewmh_connection_t& atoms,
                                   const std::vector<std::uint32_t>& actions);
    EwmhWindowType typeAmong(const std::vector<std::uint32_t>& types, bool isTransient) const;
    static void readSizeHints(EwmhWindow& window, const xcb_get_property_reply_t* reply);
    ProcessIdentifier processOf(const std::vector<std::uint32_t>& pid, const xcb_get_property_reply_t* machine) const;

    X11Connection& m_connection;
    EwmhWindowId m_window;
    xcb_get_geometry_cookie_t m_geometry;
    xcb_translate_coordinates_cookie_t m_position;
    xcb_get_property_cookie_t m_pid;
    xcb_get_property_cookie_t m_machine;
    xcb_get_property_cookie_t m_type;
    xcb_get_property_cookie_t m_states;
    xcb_get_property_cookie_t m_allowedActions;
    xcb_get_property_cookie_t m_transientFor;
    xcb_get_property_cookie_t m_hints;
    xcb_get_property_cookie_t m_desktop;
    xcb_get_property_cookie_t m_frameExtents;
    xcb_get_property_cookie_t m_shadowExtents;
    xcb_get_property_cookie_t m_sizeHints;
    xcb_get_property_cookie_t m_tilingRecord;
    xcb_get_property_cookie_t m_strutPartial;
    xcb_get_property_cookie_t m_strut;
};

}  // namespace kinesta
