#include "desktop/harness/ClientWindow.h"

#include <gtest/gtest.h>
#include <xcb/xcb_icccm.h>

#include <utility>

#include "platform/linux/x11/XcbPointer.h"

namespace kinesta::testing {
namespace {

void setHints(xcb_connection_t* connection, xcb_window_t window, const WindowRectangle& place, WindowSize minimum,
              WindowSize maximum) {
    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_position(&hints, 1, place.x, place.y);
    xcb_icccm_size_hints_set_min_size(&hints, minimum.width, minimum.height);
    xcb_icccm_size_hints_set_max_size(&hints, maximum.width, maximum.height);
    xcb_icccm_set_wm_normal_hints(connection, window, &hints);
}

}  // namespace

ClientWindow::Connection ClientWindow::connect(const TestDesktop& desktop) {
    return {xcb_connect(desktop.display().c_str(), nullptr), &xcb_disconnect};
}

ClientWindow::ClientWindow(const TestDesktop& desktop, WindowWatch& watch, const WindowRectangle& place,
                           Connection connection)
    : m_desktop(desktop),
      m_watch(watch),
      m_connection(std::move(connection)),
      m_window(xcb_generate_id(m_connection.get())),
      m_place(place) {
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_window, desktop.root(),
                      static_cast<std::int16_t>(place.x), static_cast<std::int16_t>(place.y),
                      static_cast<std::uint16_t>(place.width), static_cast<std::uint16_t>(place.height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    setHints(m_connection.get(), m_window, place, {1, 1}, {32767, 32767});
    setAtoms("WM_PROTOCOLS", {"WM_DELETE_WINDOW"});
}

ClientWindow::~ClientWindow() {
    xcb_destroy_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
}

ClientWindow& ClientWindow::set(const std::string& property, xcb_atom_t type, std::vector<std::uint32_t> numbers) {
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_window, m_desktop.atom(property), type, 32,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
    return *this;
}

ClientWindow& ClientWindow::setAtoms(const std::string& property, const std::vector<std::string>& names) {
    std::vector<std::uint32_t> atoms;
    for (const auto& name : names)
        atoms.push_back(m_desktop.atom(name));
    return set(property, XCB_ATOM_ATOM, atoms);
}

ClientWindow& ClientWindow::remove(const std::string& property) {
    xcb_delete_property(m_connection.get(), m_window, m_desktop.atom(property));
    return *this;
}

ClientWindow& ClientWindow::setMachine(const std::string& name) {
    xcb_icccm_set_wm_client_machine(m_connection.get(), m_window, XCB_ATOM_STRING, 8,
                                    static_cast<std::uint32_t>(name.size()), name.c_str());
    return *this;
}

ClientWindow& ClientWindow::setMinimum(WindowSize size) {
    setHints(m_connection.get(), m_window, m_place, size, {32767, 32767});
    return *this;
}

ClientWindow& ClientWindow::setFixedSize() {
    setHints(m_connection.get(), m_window, m_place, m_place.size(), m_place.size());
    return *this;
}

ClientWindow& ClientWindow::setStaticGravity() {
    xcb_size_hints_t hints{};
    xcb_icccm_size_hints_set_win_gravity(&hints, XCB_GRAVITY_STATIC);
    xcb_icccm_set_wm_normal_hints(m_connection.get(), m_window, &hints);
    return *this;
}

ClientWindow& ClientWindow::setTransientFor(xcb_window_t owner) {
    return set("WM_TRANSIENT_FOR", XCB_ATOM_WINDOW, {owner});
}

ClientWindow& ClientWindow::setGroup(xcb_window_t leader) {
    xcb_icccm_wm_hints_t hints{};
    xcb_icccm_wm_hints_set_input(&hints, 1);
    xcb_icccm_wm_hints_set_window_group(&hints, leader);
    xcb_icccm_set_wm_hints(m_connection.get(), m_window, &hints);
    return *this;
}

void ClientWindow::send() {
    XcbPointer<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

ClientWindow& ClientWindow::show(bool becomesActive) {
    xcb_map_window(m_connection.get(), m_window);
    xcb_flush(m_connection.get());
    EXPECT_TRUE(
        m_watch.await([&] { return m_watch.isManaged(m_window) && (!becomesActive || m_watch.active() == m_window); }));
    return *this;
}

bool ClientWindow::awaitCloseRequest(std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!takeCloseRequest()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !waitForInput(xcb_get_file_descriptor(m_connection.get()), left))
            return takeCloseRequest();
    }
    return true;
}

bool ClientWindow::wasAskedToClose() {
    m_watch.letWindowManagerCatchUp(m_window);
    return takeCloseRequest();
}

bool ClientWindow::takeCloseRequest() {
    // Whatever was sent to us before this is answered has come.
    XcbPointer<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
    bool wasAsked = false;
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE)
            continue;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        wasAsked |= message.window == m_window && message.data.data32[0] == m_desktop.atom("WM_DELETE_WINDOW");
    }
    return wasAsked;
}

}  // namespace kinesta::testing
