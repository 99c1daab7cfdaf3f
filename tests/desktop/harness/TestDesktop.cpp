#include "desktop/harness/TestDesktop.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace kinesta::testing {
namespace {

namespace fs = std::filesystem;

void require(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

}  // namespace

fs::path folderOf(const char* variable) { return std::getenv(variable); }

TestDesktop::TestDesktop() : TestDesktop(Options{}) {}

TestDesktop::TestDesktop(const Options& options) : m_screen(options.screen) {
    setenv("XDG_CURRENT_DESKTOP", "Test", 1);
    setenv("XDG_SESSION_TYPE", "x11", 1);
    startServer();
    if (options.hasSessionBus)
        startSessionBus();
    if (options.hasWindowManager)
        startWindowManager();
}

TestDesktop::~TestDesktop() {
    stopServer();
    m_bus.reset();
}

void TestDesktop::freezeServer() const { m_server->signal(SIGSTOP); }

void TestDesktop::thawServer() const { m_server->signal(SIGCONT); }

void TestDesktop::startServer() {
    std::array<int, 2> ready{};
    require(pipe2(ready.data(), O_CLOEXEC) == 0, "no pipe");
    // The server picks the number itself and tells it once it is ready: two test programs never meet.
    m_server = std::make_unique<ChildProcess>(
        std::vector<std::string>{"Xvfb", "-displayfd", std::to_string(ready[1]), "-screen", "0", m_screen, "-nolisten",
                                 "tcp", "-noreset"},
        std::vector<std::string>{}, ready[1]);
    close(ready[1]);
    std::string number;
    char digit = 0;
    while (waitForInput(ready[0], ChildProcess::kPatience) && read(ready[0], &digit, 1) == 1 && digit != '\n')
        number += digit;
    close(ready[0]);
    require(digit == '\n' && !number.empty(), "Xvfb does not start");
    m_display = ":" + number;
    setenv("DISPLAY", m_display.c_str(), 1);
    m_connection = xcb_connect(m_display.c_str(), nullptr);
    require(xcb_connection_has_error(m_connection) == 0, "Xvfb refuses the connection");
    setLayout("us");
}

void TestDesktop::startSessionBus() {
    // It starts nothing of the machine's but the accessibility bus, whatever is installed.
    const fs::path folder = folderOf("XDG_RUNTIME_DIR") / "dbus";
    if (fs::create_directory(folder)) {
        fs::create_symlink("/usr/share/dbus-1/services/org.a11y.Bus.service", folder / "org.a11y.Bus.service");
        std::ofstream(folder / "bus.conf")
            << "<busconfig><type>session</type><listen>unix:dir=" << folder.string() << "</listen><servicedir>"
            << folder.string() << "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
            << "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>\n";
    }
    m_bus = run({"dbus-daemon", "--config-file=" + (folder / "bus.conf").string(), "--nofork", "--print-address=1"});
    const auto address = m_bus->readLine();
    require(address.has_value(), "dbus-daemon does not start");
    setenv("DBUS_SESSION_BUS_ADDRESS", address->c_str(), 1);
}

void TestDesktop::startWindowManager() {
    m_windowManager = run({"openbox", "--sm-disable"});
    // Openbox does not look at what comes while it starts until something else comes: so it is asked until it
    // answers.
    const xcb_window_t probe = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, probe, root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = probe;
    question.type = atom("_NET_REQUEST_FRAME_EXTENTS");
    const auto answers = [&] {
        xcb_send_event(m_connection, 0, root(),
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&question));
        return property(probe, "_NET_FRAME_EXTENTS").has_value();
    };
    require(eventually(answers), "openbox does not start");
    xcb_destroy_window(m_connection, probe);
    xcb_flush(m_connection);
}

xcb_screen_t* TestDesktop::screen() const { return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data; }

xcb_atom_t TestDesktop::atom(const std::string& name) const {
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::optional<std::uint32_t> TestDesktop::property(xcb_window_t window, const std::string& name) const {
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr), &std::free);
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return std::nullopt;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

bool TestDesktop::bringToKeyboard(xcb_window_t window) const {
    // A window manager may take its time, and give the keyboard to a window itself before or after.
    return eventually([&] {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
        const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> focus(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr), &std::free);
        return focus && focus->focus == window;
    });
}

void TestDesktop::setLayout(const std::string& layout) {
    // By the names of evdev, which is what the keycodes of a real Linux desktop follow.
    require(run({"setxkbmap", "-rules", "evdev", "-model", "pc105", "-layout", layout, "-option", ""})->waitForEnd(),
            "setxkbmap does not end");
}

void TestDesktop::stopServer() {
    m_windowManager.reset();
    if (m_connection != nullptr)
        xcb_disconnect(std::exchange(m_connection, nullptr));
    m_server.reset();
    setenv("DISPLAY", ":54321", 1);  // the number that it had may be another's by now
}

std::unique_ptr<ChildProcess> TestDesktop::run(std::vector<std::string> command) const {
    return std::make_unique<ChildProcess>(std::move(command));
}

}  // namespace kinesta::testing
