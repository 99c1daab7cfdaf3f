#include "platform/linux/windows/EwmhWindowQuery.h"

#include <unistd.h>
#include <xcb/xcb_icccm.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace kinesta {
namespace {

using Items = std::vector<std::uint32_t>;

bool contains(const Items& items, xcb_atom_t atom) {
    return std::find(items.begin(), items.end(), atom) != items.end();
}

/// Limits the numbers that clients set: no screen is this large, and later arithmetic cannot overflow.
int length(std::uint32_t value) { return static_cast<int>(std::min<std::uint32_t>(value, 32767)); }
int length(std::int32_t value) { return std::clamp(value, 0, 32767); }

WindowInsets insets(const std::optional<Items>& extents) {
    if (!extents || extents->size() < 4)
        return {};
    return {length((*extents)[0]), length((*extents)[1]), length((*extents)[2]), length((*extents)[3])};
}

std::optional<EwmhStruts> struts(const std::optional<Items>& partial, const std::optional<Items>& whole) {
    if (partial && partial->size() >= 12) {
        const auto item = [&](std::size_t i) { return length((*partial)[i]); };
        return EwmhStruts{{item(0), item(4), item(5)},
                          {item(1), item(6), item(7)},
                          {item(2), item(8), item(9)},
                          {item(3), item(10), item(11)}};
    }
    if (whole && whole->size() >= 4) {
        const auto item = [&](std::size_t i) { return length((*whole)[i]); };
        return EwmhStruts{{item(0), 0, 32767}, {item(1), 0, 32767}, {item(2), 0, 32767}, {item(3), 0, 32767}};
    }
    return std::nullopt;
}

bool isThisMachine(const xcb_get_property_reply_t* machine) {
    // A client without this property runs here: remote clients that set their process also set their machine.
    if (machine == nullptr || machine->format != 8 || machine->value_len == 0)
        return true;
    std::array<char, 256> name{};
    if (gethostname(name.data(), name.size() - 1) != 0)
        return true;
    return std::string_view(static_cast<const char*>(xcb_get_property_value(machine)), machine->value_len) ==
           name.data();
}

}  // namespace

EwmhWindowQuery::EwmhWindowQuery(X11Connection& connection, EwmhWindowId window)
    : m_connection(connection),
      m_window(window),
      m_geometry(xcb_get_geometry(connection.xcb(), window)),
      m_position(xcb_translate_coordinates(connection.xcb(), window, connection.root(), 0, 0)),
      m_pid(connection.requestProperty(window, connection.atoms()._NET_WM_PID, XCB_ATOM_CARDINAL)),
      m_machine(connection.requestProperty(window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_GET_PROPERTY_TYPE_ANY)),
      m_type(connection.requestProperty(window, connection.atoms()._NET_WM_WINDOW_TYPE, XCB_ATOM_ATOM)),
      m_states(connection.requestProperty(window, connection.atoms()._NET_WM_STATE, XCB_ATOM_ATOM)),
      m_allowedActions(connection.requestProperty(window, connection.atoms()._NET_WM_ALLOWED_ACTIONS, XCB_ATOM_ATOM)),
      m_transientFor(connection.requestProperty(window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW)),
      m_hints(xcb_icccm_get_wm_hints(connection.xcb(), window)),
      m_desktop(connection.requestProperty(window, connection.atoms()._NET_WM_DESKTOP, XCB_ATOM_CARDINAL)),
      m_frameExtents(connection.requestProperty(window, connection.atoms()._NET_FRAME_EXTENTS, XCB_ATOM_CARDINAL)),
      m_shadowExtents(connection.requestProperty(window, connection.gtkFrameExtents(), XCB_ATOM_CARDINAL)),
      m_sizeHints(xcb_icccm_get_wm_normal_hints(connection.xcb(), window)),
      m_tilingRecord(connection.requestProperty(window, connection.tilingRecord(), XCB_ATOM_CARDINAL)),
      m_strutPartial(connection.requestProperty(window, connection.atoms()._NET_WM_STRUT_PARTIAL, XCB_ATOM_CARDINAL)),
      m_strut(connection.requestProperty(window, connection.atoms()._NET_WM_STRUT, XCB_ATOM_CARDINAL)) {}

std::optional<EwmhWindow> EwmhWindowQuery::answer(Deadline deadline) {
    const auto& atoms = m_connection.atoms();
    const auto geometry = m_connection.reply<xcb_get_geometry_reply_t>(m_geometry, deadline);
    const auto position = m_connection.reply<xcb_translate_coordinates_reply_t>(m_position, deadline);
    const auto pid = m_connection.items(m_pid, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    const auto machine = m_connection.reply<xcb_get_property_reply_t>(m_machine, deadline);
    const auto types = m_connection.items(m_type, XCB_ATOM_ATOM, deadline).value_or(Items{});
    const auto states = m_connection.items(m_states, XCB_ATOM_ATOM, deadline).value_or(Items{});
    const auto allowedActions = m_connection.items(m_allowedActions, XCB_ATOM_ATOM, deadline);
    const auto transientFor = m_connection.items(m_transientFor, XCB_ATOM_WINDOW, deadline).value_or(Items{});
    const auto hints = m_connection.reply<xcb_get_property_reply_t>(m_hints, deadline);
    const auto desktop = m_connection.items(m_desktop, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    const auto extents = insets(m_connection.items(m_frameExtents, XCB_ATOM_CARDINAL, deadline));
    const auto shadow = insets(m_connection.items(m_shadowExtents, XCB_ATOM_CARDINAL, deadline));
    const auto sizeHints = m_connection.reply<xcb_get_property_reply_t>(m_sizeHints, deadline);
    auto tilingRecord = m_connection.items(m_tilingRecord, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    const auto strutPartial = m_connection.items(m_strutPartial, XCB_ATOM_CARDINAL, deadline);
    const auto strut = m_connection.items(m_strut, XCB_ATOM_CARDINAL, deadline);
    // The server answers in order, so if nothing is overdue after the last answer, none is missing.
    if (!geometry || !position || !m_connection.isAnswering())
        return std::nullopt;

    EwmhWindow window;
    window.id = m_window;
    window.process = processOf(pid, machine.get());
    window.transientFor = transientFor.empty() ? 0 : transientFor[0];
    window.type = typeAmong(types, window.transientFor != 0);
    readStates(window, atoms, states);
    if (allowedActions)
        readAllowedActions(window, atoms, *allowedActions);
    xcb_icccm_wm_hints_t wmHints{};
    if (hints && xcb_icccm_get_wm_hints_from_reply(&wmHints, hints.get()) != 0 &&
        (wmHints.flags & XCB_ICCCM_WM_HINT_WINDOW_GROUP) != 0)
        window.group = wmHints.window_group;
    if (!desktop.empty())
        window.desktop = desktop[0];
    window.shadow = shadow;
    window.frameInsets = {extents.left - shadow.left, extents.right - shadow.right, extents.top - shadow.top,
                          extents.bottom - shadow.bottom};
    window.frame =
        WindowRectangle{position->dst_x, position->dst_y, geometry->width, geometry->height} + window.frameInsets;
    readSizeHints(window, sizeHints.get());
    window.tilingRecord = std::move(tilingRecord);
    window.struts = struts(strutPartial, strut);
    return window;
}

void EwmhWindowQuery::readStates(EwmhWindow& window, const xcb_ewmh_connection_t& atoms, const Items& states) {
    window.isHidden = contains(states, atoms._NET_WM_STATE_HIDDEN);
    window.isModal = contains(states, atoms._NET_WM_STATE_MODAL);
    window.isFullscreen = contains(states, atoms._NET_WM_STATE_FULLSCREEN);
    window.isMaximizedHorizontally = contains(states, atoms._NET_WM_STATE_MAXIMIZED_HORZ);
    window.isMaximizedVertically = contains(states, atoms._NET_WM_STATE_MAXIMIZED_VERT);
    window.skipsTaskbar = contains(states, atoms._NET_WM_STATE_SKIP_TASKBAR);
}

void EwmhWindowQuery::readAllowedActions(EwmhWindow& window, const xcb_ewmh_connection_t& atoms, const Items& actions) {
    window.mayClose = contains(actions, atoms._NET_WM_ACTION_CLOSE);
    // Window managers remove these while a window is maximized or fullscreen. Tiling ends both first.
    window.mayMove = window.isZoomed() || contains(actions, atoms._NET_WM_ACTION_MOVE);
    window.mayResize = window.isZoomed() || contains(actions, atoms._NET_WM_ACTION_RESIZE);
}

EwmhWindowType EwmhWindowQuery::typeAmong(const Items& types, bool isTransient) const {
    const auto& atoms = m_connection.atoms();
    // The first known type counts: desktops put their own types before it.
    for (const std::uint32_t type : types) {
        if (type == atoms._NET_WM_WINDOW_TYPE_NORMAL)
            return EwmhWindowType::normal;
        if (type == atoms._NET_WM_WINDOW_TYPE_DIALOG)
            return EwmhWindowType::dialog;
        for (const xcb_atom_t other :
             {atoms._NET_WM_WINDOW_TYPE_DESKTOP, atoms._NET_WM_WINDOW_TYPE_DOCK, atoms._NET_WM_WINDOW_TYPE_TOOLBAR,
              atoms._NET_WM_WINDOW_TYPE_MENU, atoms._NET_WM_WINDOW_TYPE_UTILITY, atoms._NET_WM_WINDOW_TYPE_SPLASH,
              atoms._NET_WM_WINDOW_TYPE_DROPDOWN_MENU, atoms._NET_WM_WINDOW_TYPE_POPUP_MENU,
              atoms._NET_WM_WINDOW_TYPE_TOOLTIP, atoms._NET_WM_WINDOW_TYPE_NOTIFICATION,
              atoms._NET_WM_WINDOW_TYPE_COMBO, atoms._NET_WM_WINDOW_TYPE_DND})
            if (type == other)
                return EwmhWindowType::other;
    }
    return isTransient ? EwmhWindowType::dialog : EwmhWindowType::normal;
}

void EwmhWindowQuery::readSizeHints(EwmhWindow& window, const xcb_get_property_reply_t* reply) {
    xcb_size_hints_t hints{};
    if (reply == nullptr || reply->type != XCB_ATOM_WM_SIZE_HINTS || reply->format != 32 ||
        xcb_icccm_get_wm_size_hints_from_reply(&hints, const_cast<xcb_get_property_reply_t*>(reply)) == 0)
        return;
    const auto has = [&hints](std::uint32_t flag) { return (hints.flags & flag) != 0; };
    window.hasStaticGravity = has(XCB_ICCCM_SIZE_HINT_P_WIN_GRAVITY) && hints.win_gravity == XCB_GRAVITY_STATIC;
    WindowSizeLimits& limits = window.limits;
    if (has(XCB_ICCCM_SIZE_HINT_P_MIN_SIZE))
        limits.minimum = {std::max(1, length(hints.min_width)), std::max(1, length(hints.min_height))};
    if (has(XCB_ICCCM_SIZE_HINT_P_MAX_SIZE) && hints.max_width > 0 && hints.max_height > 0)
        limits.maximum = {length(hints.max_width), length(hints.max_height)};
    if (has(XCB_ICCCM_SIZE_HINT_P_RESIZE_INC))
        limits.increment = {std::max(1, length(hints.width_inc)), std::max(1, length(hints.height_inc))};
    if (has(XCB_ICCCM_SIZE_HINT_BASE_SIZE))
        limits.base = {length(hints.base_width), length(hints.base_height)};
    else if (has(XCB_ICCCM_SIZE_HINT_P_MIN_SIZE))
        limits.base = limits.minimum;
    if (has(XCB_ICCCM_SIZE_HINT_P_ASPECT) && hints.min_aspect_num > 0 && hints.min_aspect_den > 0 &&
        hints.max_aspect_num > 0 && hints.max_aspect_den > 0)
        limits.aspect = WindowSizeLimits::AspectRange{static_cast<double>(hints.min_aspect_num) / hints.min_aspect_den,
                                                      static_cast<double>(hints.max_aspect_num) / hints.max_aspect_den};
}

ProcessIdentifier EwmhWindowQuery::processOf(const Items& pid, const xcb_get_property_reply_t* machine) const {
    if (!pid.empty() && pid[0] > 0 && isThisMachine(machine))
        return pid[0];
    // The bits that the client did not choose identify the client for as long as it lives.
    const std::uint32_t chosenByClient = xcb_get_setup(m_connection.xcb())->resource_id_mask;
    return -static_cast<ProcessIdentifier>(m_window & ~chosenByClient);
}

}  // namespace kinesta
