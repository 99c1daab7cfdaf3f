#include "platform/linux/EwmhDesktop.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/linux/EwmhWindowQuery.h"
#include "platform/linux/EwmhWorkAreas.h"

namespace kinesta {
namespace {

using Items = std::vector<std::uint32_t>;

/// More windows than anyone has; keeps what we send small enough that sending never waits.
constexpr std::size_t kMostWindows = 200;

/// A window manager ends maximization in several steps and does not say which is the last: so long without a step,
/// in seconds, and it was.
constexpr Seconds kQuiet = 0.02;

WindowRectangle rectangleAt(const Items& items, std::size_t first) {
    // No screen is larger, and nothing computed from such numbers overflows.
    const auto item = [&](std::size_t i) { return static_cast<int>(std::min<std::uint32_t>(items[first + i], 32767)); };
    return {item(0), item(1), item(2), item(3)};
}

}  // namespace

std::optional<ProcessIdentifier> EwmhDesktop::frontmostApplication(Seconds timeout) {
    const auto window = activeWindow(timeout);
    return window ? std::optional(window->process) : std::nullopt;
}

std::optional<EwmhWindow> EwmhDesktop::activeWindow(Seconds timeout) {
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    const auto active = activeWindowId(deadline);
    return active ? EwmhWindowQuery(m_connection, *active).answer(deadline) : std::nullopt;
}

std::optional<EwmhWindow> EwmhDesktop::window(EwmhWindowId window, Seconds timeout) {
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    return EwmhWindowQuery(m_connection, window).answer(deadline);
}

std::optional<EwmhSnapshot> EwmhDesktop::snapshot(Seconds timeout) {
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    const auto& atoms = m_connection.atoms();
    const xcb_window_t root = m_connection.session().root();
    const auto request = [&](xcb_atom_t property, xcb_atom_t type) {
        return m_connection.requestProperty(root, property, type, 4096);
    };
    const auto activeCookie = request(atoms._NET_ACTIVE_WINDOW, XCB_ATOM_WINDOW);
    const auto stackingCookie = request(atoms._NET_CLIENT_LIST_STACKING, XCB_ATOM_WINDOW);
    const auto listCookie = request(atoms._NET_CLIENT_LIST, XCB_ATOM_WINDOW);
    const auto desktopCookie = request(atoms._NET_CURRENT_DESKTOP, XCB_ATOM_CARDINAL);
    const auto workAreaCookie = request(atoms._NET_WORKAREA, XCB_ATOM_CARDINAL);
    std::optional<xcb_randr_get_monitors_cookie_t> monitorsCookie;
    if (m_connection.session().knowsMonitors())
        monitorsCookie = xcb_randr_get_monitors(m_connection.xcb(), root, 1);
    const auto geometryCookie = xcb_get_geometry(m_connection.xcb(), root);

    EwmhSnapshot snapshot;
    snapshot.root = root;
    const auto active = rootItems(activeCookie, XCB_ATOM_WINDOW, deadline).value_or(Items{});
    const auto stacking = rootItems(stackingCookie, XCB_ATOM_WINDOW, deadline);
    const auto list = rootItems(listCookie, XCB_ATOM_WINDOW, deadline);
    const auto desktop = rootItems(desktopCookie, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    const auto workArea = rootItems(workAreaCookie, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    std::vector<WindowRectangle> monitors;
    if (monitorsCookie)
        monitors = monitorBounds(*monitorsCookie, deadline);
    const auto geometry = m_connection.reply<xcb_get_geometry_reply_t>(geometryCookie, deadline);
    if (!geometry)
        return std::nullopt;
    snapshot.activeWindow = active.empty() ? 0 : active[0];
    snapshot.currentDesktop = desktop.empty() ? 0 : desktop[0];

    Items ids = stacking ? *stacking : list.value_or(Items{});
    if (ids.size() > kMostWindows)
        ids.erase(ids.begin(), ids.end() - kMostWindows);
    std::vector<EwmhWindowQuery> queries;
    queries.reserve(ids.size());
    for (const EwmhWindowId id : ids)
        queries.emplace_back(m_connection, id);
    for (auto& query : queries)
        if (auto window = query.answer(deadline))
            snapshot.windows.push_back(*window);

    const WindowRectangle screen{0, 0, geometry->width, geometry->height};
    if (monitors.empty())
        monitors.push_back(screen);
    std::vector<WindowRectangle> toldAreas;
    if (monitors.size() > 1)
        toldAreas = monitorWorkAreas(snapshot.currentDesktop, deadline);
    // Four numbers for each desktop; a window manager that has only one area tells it once.
    const std::size_t first = std::size_t{4} * snapshot.currentDesktop;
    std::optional<WindowRectangle> screenWorkArea;
    if (workArea.size() >= first + 4)
        screenWorkArea = rectangleAt(workArea, first);
    else if (workArea.size() >= 4)
        screenWorkArea = rectangleAt(workArea, 0);
    snapshot.monitors =
        ewmhWorkAreas({screen, monitors, screenWorkArea, toldAreas, snapshot.windows, snapshot.currentDesktop});
    // Otherwise windows may be missing.
    return m_connection.isAnswering() ? std::optional(std::move(snapshot)) : std::nullopt;
}

bool EwmhDesktop::close(EwmhWindowId window, Seconds timeout) {
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return false;
    const xcb_timestamp_t time = m_connection.serverTime(deadline);
    xcb_ewmh_request_close_window(m_connection.session().ewmh(), m_connection.session().screenNumber(), window, time,
                                  XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
    flush();
    return m_connection.isAnswering();
}

std::vector<std::optional<Items>> EwmhDesktop::tilingRecords(std::span<const EwmhWindowId> windows, Seconds timeout) {
    std::vector<std::optional<Items>> records(windows.size());
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return records;
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (const EwmhWindowId window : windows)
        cookies.push_back(
            m_connection.requestProperty(window, m_connection.session().tilingRecord(), XCB_ATOM_CARDINAL));
    for (std::size_t i = 0; i < cookies.size(); ++i)
        records[i] = rootItems(cookies[i], XCB_ATOM_CARDINAL, deadline);
    return records;
}

void EwmhDesktop::setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record) {
    if (!m_connection.isAnswering())
        return;
    if (record.empty())
        xcb_delete_property(m_connection.xcb(), window, m_connection.session().tilingRecord());
    else
        xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, window, m_connection.session().tilingRecord(),
                            XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(record.size()), record.data());
}

void EwmhDesktop::place(const EwmhWindow& window, const WindowRectangle& frame) {
    if (!m_connection.isAnswering())
        return;
    constexpr auto kMove = XCB_EWMH_MOVERESIZE_WINDOW_X | XCB_EWMH_MOVERESIZE_WINDOW_Y;
    constexpr auto kMoveAndResize = kMove | XCB_EWMH_MOVERESIZE_WINDOW_WIDTH | XCB_EWMH_MOVERESIZE_WINDOW_HEIGHT;
    const bool keepsSize = frame.size() == window.frame.size();
    const WindowSize client = (frame - window.frameInsets).size();
    // The place is that of the outer corner, shadows included; the size that of the window proper. The other way,
    // static gravity, puts windows off by a border that they were made with and no longer have (openbox 3.6).
    xcb_ewmh_request_moveresize_window(
        m_connection.session().ewmh(), m_connection.session().screenNumber(), window.id, XCB_GRAVITY_NORTH_WEST,
        XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
        static_cast<xcb_ewmh_moveresize_window_opt_flags_t>(keepsSize ? kMove : kMoveAndResize),
        static_cast<std::uint32_t>(frame.x - window.shadow.left),
        static_cast<std::uint32_t>(frame.y - window.shadow.top), static_cast<std::uint32_t>(client.width),
        static_cast<std::uint32_t>(client.height));
}

void EwmhDesktop::setFullscreen(EwmhWindowId window, bool isFullscreen) {
    if (!m_connection.isAnswering())
        return;
    xcb_ewmh_request_change_wm_state(m_connection.session().ewmh(), m_connection.session().screenNumber(), window,
                                     isFullscreen ? XCB_EWMH_WM_STATE_ADD : XCB_EWMH_WM_STATE_REMOVE,
                                     m_connection.atoms()._NET_WM_STATE_FULLSCREEN, XCB_ATOM_NONE,
                                     XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
}

void EwmhDesktop::setMaximized(EwmhWindowId window, bool isHorizontal, bool isVertical, bool isMaximized) {
    if (!m_connection.isAnswering() || (!isHorizontal && !isVertical))
        return;
    const auto& atoms = m_connection.atoms();
    const xcb_atom_t vertical = isVertical ? atoms._NET_WM_STATE_MAXIMIZED_VERT : xcb_atom_t{XCB_ATOM_NONE};
    // Both in one message: one step for the window manager, and no flicker.
    xcb_ewmh_request_change_wm_state(m_connection.session().ewmh(), m_connection.session().screenNumber(), window,
                                     isMaximized ? XCB_EWMH_WM_STATE_ADD : XCB_EWMH_WM_STATE_REMOVE,
                                     isHorizontal ? atoms._NET_WM_STATE_MAXIMIZED_HORZ : vertical,
                                     isHorizontal ? vertical : xcb_atom_t{XCB_ATOM_NONE},
                                     XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
}

void EwmhDesktop::raise(EwmhWindowId window) {
    if (!m_connection.isAnswering())
        return;
    // To put it right below another one would be more exact; openbox 3.6 takes that for the bottom.
    xcb_ewmh_request_restack_window(m_connection.session().ewmh(), m_connection.session().screenNumber(), window,
                                    XCB_WINDOW_NONE, XCB_STACK_MODE_ABOVE);
}

void EwmhDesktop::restore(std::span<const EwmhWindow> windows, Seconds timeout) {
    if (!m_connection.isAnswering())
        return;
    const Deadline deadline = EwmhConnection::deadlineIn(timeout);
    std::vector<EwmhWindowId> waitingFor;
    for (const auto& window : windows) {
        if (!window.isZoomed())
            continue;
        waitingFor.push_back(window.id);
        watch(window.id, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        if (window.isFullscreen)
            setFullscreen(window.id, false);
        setMaximized(window.id, window.isMaximizedHorizontally, window.isMaximizedVertically, false);
    }
    const auto watched = waitingFor;
    const auto& atoms = m_connection.atoms();
    const auto isStep = [&](const xcb_generic_event_t& event) {
        const auto type = event.response_type & 0x7F;
        if (type == XCB_DESTROY_NOTIFY)
            std::erase(waitingFor, reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        if (type == XCB_CONFIGURE_NOTIFY || type == XCB_DESTROY_NOTIFY)
            return true;
        if (type != XCB_PROPERTY_NOTIFY)
            return false;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.atom == atoms._NET_WM_STATE)
            std::erase(waitingFor, change.window);
        return change.atom == atoms._NET_WM_STATE || change.atom == atoms._NET_FRAME_EXTENTS;
    };
    while (!watched.empty()) {
        const Deadline quiet = EwmhConnection::deadlineIn(kQuiet);
        if (!m_connection.awaitEvent(isStep, waitingFor.empty() ? std::min(quiet, deadline) : deadline))
            break;
    }
    for (const EwmhWindowId window : watched)
        watch(window, XCB_EVENT_MASK_NO_EVENT);
}

std::optional<Items> EwmhDesktop::rootItems(xcb_get_property_cookie_t cookie, xcb_atom_t type, Deadline deadline) {
    return EwmhConnection::items(m_connection.reply<xcb_get_property_reply_t>(cookie, deadline).get(), type);
}

std::optional<EwmhWindowId> EwmhDesktop::activeWindowId(Deadline deadline) {
    const auto active =
        rootItems(m_connection.requestProperty(m_connection.session().root(), m_connection.atoms()._NET_ACTIVE_WINDOW,
                                               XCB_ATOM_WINDOW),
                  XCB_ATOM_WINDOW, deadline);
    return active && !active->empty() && (*active)[0] != 0 ? std::optional((*active)[0]) : std::nullopt;
}

std::vector<WindowRectangle> EwmhDesktop::monitorBounds(xcb_randr_get_monitors_cookie_t cookie, Deadline deadline) {
    std::vector<WindowRectangle> monitors;
    const auto reply = m_connection.reply<xcb_randr_get_monitors_reply_t>(cookie, deadline);
    if (!reply)
        return monitors;
    for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        const WindowRectangle bounds{each.data->x, each.data->y, each.data->width, each.data->height};
        // Mirrored monitors show the same and are one.
        if (!bounds.isEmpty() && std::find(monitors.begin(), monitors.end(), bounds) == monitors.end())
            monitors.push_back(bounds);
    }
    return monitors;
}

/// GNOME's window manager tells the areas of each monitor, and its panel is no window that would tell struts.
std::vector<WindowRectangle> EwmhDesktop::monitorWorkAreas(std::uint32_t desktop, Deadline deadline) {
    const std::string name = "_GTK_WORKAREAS_D" + std::to_string(desktop);
    const auto atom = m_connection.reply<xcb_intern_atom_reply_t>(
        xcb_intern_atom(m_connection.xcb(), 1, static_cast<std::uint16_t>(name.size()), name.c_str()), deadline);
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return {};
    const auto numbers =
        rootItems(m_connection.requestProperty(m_connection.session().root(), atom->atom, XCB_ATOM_CARDINAL),
                  XCB_ATOM_CARDINAL, deadline)
            .value_or(Items{});
    std::vector<WindowRectangle> areas;
    for (std::size_t first = 0; first + 4 <= numbers.size(); first += 4)
        areas.push_back(rectangleAt(numbers, first));
    return areas;
}

void EwmhDesktop::watch(EwmhWindowId window, std::uint32_t events) {
    xcb_change_window_attributes(m_connection.xcb(), window, XCB_CW_EVENT_MASK, &events);
}

}  // namespace kinesta
