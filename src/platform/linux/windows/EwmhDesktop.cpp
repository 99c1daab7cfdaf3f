#include "platform/linux/windows/EwmhDesktop.h"

#include <utility>

#include "platform/linux/windows/EwmhMonitors.h"
#include "platform/linux/windows/EwmhWindowQuery.h"
#include "platform/linux/windows/EwmhWorkAreas.h"

namespace kinesta {
namespace {

using Items = std::vector<std::uint32_t>;

/// More windows than anyone has. The limit keeps our requests small enough that sending never blocks.
constexpr std::size_t kMostWindows = 200;

}  // namespace

std::optional<ProcessIdentifier> EwmhDesktop::frontmostApplication(Seconds timeout) {
    const auto window = activeWindow(timeout);
    return window ? std::optional(window->process) : std::nullopt;
}

std::optional<EwmhWindow> EwmhDesktop::activeWindow(Seconds timeout) {
    const Deadline deadline = deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    const auto activeCookie =
        m_connection.requestProperty(m_connection.root(), m_connection.atoms()._NET_ACTIVE_WINDOW, XCB_ATOM_WINDOW);
    // Query the window that was active last in the same round trip: it usually still is.
    EwmhWindowQuery usual(m_connection, m_lastActive);
    const auto active = m_connection.items(activeCookie, XCB_ATOM_WINDOW, deadline);
    auto window = usual.answer(deadline);
    if (!active || active->empty() || (*active)[0] == 0)
        return std::nullopt;
    if ((*active)[0] == usual.window())
        return window;
    m_lastActive = (*active)[0];
    return EwmhWindowQuery(m_connection, m_lastActive).answer(deadline);
}

void EwmhDesktop::addTo(DesktopFacts& facts) {
    const Deadline deadline = deadlineIn(kTimeout);
    if (!facts.hasX || !m_connection.prepare(deadline))
        return;
    const auto manager = askManager().answer(deadline);
    if (!manager)
        return;
    const auto desktop = snapshot();
    facts.hasWindowManager = true;
    facts.windowManager = manager->name;
    facts.takesI3Commands = manager->takesI3Commands();
    facts.closesWindows = desktop && desktop->closesWindows;
    facts.movesWindows = desktop && desktop->movesWindows;
}

std::optional<EwmhWindow> EwmhDesktop::window(EwmhWindowId window, Seconds timeout) {
    const Deadline deadline = deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    auto found = EwmhWindowQuery(m_connection, window).answer(deadline);
    if (const auto i3 = this->i3(); found && i3 && !i3->locate({&*found, 1}, deadline))
        return std::nullopt;
    return found;
}

std::optional<EwmhSnapshot> EwmhDesktop::snapshot(Seconds timeout) {
    const Deadline deadline = deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return std::nullopt;
    auto managerQuery = askManager();
    const auto& atoms = m_connection.atoms();
    const xcb_window_t root = m_connection.root();
    const auto request = [&](xcb_atom_t property, xcb_atom_t type) {
        return m_connection.requestProperty(root, property, type, 4096);
    };
    const auto activeCookie = request(atoms._NET_ACTIVE_WINDOW, XCB_ATOM_WINDOW);
    const auto stackingCookie = request(atoms._NET_CLIENT_LIST_STACKING, XCB_ATOM_WINDOW);
    const auto listCookie = request(atoms._NET_CLIENT_LIST, XCB_ATOM_WINDOW);
    const auto desktopCookie = request(atoms._NET_CURRENT_DESKTOP, XCB_ATOM_CARDINAL);
    const auto workAreaCookie = request(atoms._NET_WORKAREA, XCB_ATOM_CARDINAL);
    std::optional<xcb_randr_get_monitors_cookie_t> monitorsCookie;
    if (m_connection.knowsMonitors())
        monitorsCookie = xcb_randr_get_monitors(m_connection.xcb(), root, 1);
    const auto geometryCookie = xcb_get_geometry(m_connection.xcb(), root);

    EwmhSnapshot snapshot;
    snapshot.root = root;
    m_manager = managerQuery.answer(deadline);
    const auto active = m_connection.items(activeCookie, XCB_ATOM_WINDOW, deadline).value_or(Items{});
    const auto stacking = m_connection.items(stackingCookie, XCB_ATOM_WINDOW, deadline);
    const auto list = m_connection.items(listCookie, XCB_ATOM_WINDOW, deadline);
    const auto desktop = m_connection.items(desktopCookie, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    const auto workArea = m_connection.items(workAreaCookie, XCB_ATOM_CARDINAL, deadline).value_or(Items{});
    std::vector<WindowRectangle> monitors;
    if (monitorsCookie)
        monitors = ewmhMonitorBounds(m_connection, *monitorsCookie, deadline);
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
    std::optional<xcb_intern_atom_cookie_t> workAreasCookie;
    if (monitors.size() > 1)
        workAreasCookie = requestMonitorWorkAreas(m_connection, snapshot.currentDesktop);
    for (auto& query : queries)
        if (auto window = query.answer(deadline))
            snapshot.windows.push_back(*std::move(window));
    std::vector<WindowRectangle> areasByMonitor;
    if (workAreasCookie)
        areasByMonitor = ewmhMonitorWorkAreas(m_connection, *workAreasCookie, deadline);

    const WindowRectangle screen{0, 0, geometry->width, geometry->height};
    if (monitors.empty())
        monitors.push_back(screen);
    if (const auto i3 = this->i3()) {
        if (!i3->locate(snapshot.windows, deadline))
            m_manager.reset();  // if it does not answer there, it cannot act either
        areasByMonitor = i3->workAreas(deadline);
    }
    snapshot.closesWindows = m_manager && (m_manager->closesWindows || m_manager->takesI3Commands());
    snapshot.movesWindows = m_manager && (m_manager->movesWindows || m_manager->takesI3Commands());
    // Four numbers for each desktop. Some window managers give one area for all desktops.
    const std::size_t first = std::size_t{4} * snapshot.currentDesktop;
    std::optional<WindowRectangle> screenWorkArea;
    if (workArea.size() >= first + 4)
        screenWorkArea = ewmhRectangleAt(workArea, first);
    else if (workArea.size() >= 4)
        screenWorkArea = ewmhRectangleAt(workArea, 0);
    snapshot.monitors =
        ewmhWorkAreas({screen, monitors, screenWorkArea, areasByMonitor, snapshot.windows, snapshot.currentDesktop});
    // Without all answers, windows may be missing.
    return m_connection.isAnswering() ? std::optional(std::move(snapshot)) : std::nullopt;
}

bool EwmhDesktop::close(EwmhWindowId window, Seconds timeout) {
    const Deadline deadline = deadlineIn(timeout);
    if (!m_connection.prepare(deadline))
        return false;
    m_connection.requestServerTime();
    auto managerQuery = askManager();
    m_manager = managerQuery.answer(deadline);
    if (const auto i3 = this->i3()) {
        if (!i3->close(window, deadline))
            return false;
        tell({EwmhRequest::Kind::close, window});
        return true;
    }
    if (!m_manager || !m_manager->closesWindows)
        return false;
    m_messages.close(window);
    flush();
    if (!m_connection.isAnswering())
        return false;
    tell({EwmhRequest::Kind::close, window});
    return true;
}

void EwmhDesktop::setTilingRecord(EwmhWindowId window, std::span<const std::uint32_t> record) {
    if (m_connection.isAnswering())
        m_messages.setTilingRecord(window, record);
}

void EwmhDesktop::place(const EwmhWindow& window, const WindowRectangle& frame) {
    if (!m_connection.isAnswering())
        return;
    const auto i3 = this->i3();
    if (i3 && !i3->place(window.id, frame, deadlineIn(kTimeout)))
        return;
    if (!i3)
        m_messages.place(window, frame);
    tell({EwmhRequest::Kind::place, window.id, window.frame, frame});
}

bool EwmhDesktop::returnToLayout(const EwmhWindow& window) {
    const auto i3 = this->i3();
    if (!i3 || !i3->returnToLayout(window.id, deadlineIn(kTimeout)))
        return false;
    tell({EwmhRequest::Kind::layout, window.id});
    return true;
}

void EwmhDesktop::zoom(const EwmhWindow& window, bool isFullscreen, bool isHorizontal, bool isVertical) {
    if (!m_connection.isAnswering() || (!isFullscreen && !isHorizontal && !isVertical))
        return;
    m_messages.setMaximized(window.id, isHorizontal, isVertical, true);
    if (isFullscreen)
        m_messages.setFullscreen(window.id, true);
    tell({EwmhRequest::Kind::zoom, window.id});
}

void EwmhDesktop::raise(EwmhWindowId window) {
    if (m_connection.isAnswering())
        m_messages.raise(window);
}

void EwmhDesktop::restore(std::span<const EwmhWindow> windows, Seconds timeout) {
    if (m_connection.isAnswering())
        m_messages.restore(windows, deadlineIn(timeout));
}

EwmhManagerQuery EwmhDesktop::askManager() {
    return {m_connection, m_manager ? m_manager->proof : xcb_window_t{XCB_WINDOW_NONE}};
}

std::optional<I3Manager> EwmhDesktop::i3() const {
    return m_manager && m_manager->takesI3Commands() ? std::optional(I3Manager(m_manager->i3Socket)) : std::nullopt;
}

void EwmhDesktop::tell(const EwmhRequest& request) {
    if (m_observer)
        m_observer(request);
}

}  // namespace kinesta
