#include "desktop/harness/TestDesktop.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace kinesta::testing {
namespace {

namespace fs = std::filesystem;

std::string lineOf(ChildProcess& program, const char* complaint) {
    auto line = program.readLine();
    return line ? std::move(*line) : throw std::runtime_error(complaint);
}

}  // namespace

fs::path folderOf(const char* variable) { return std::getenv(variable); }

TestDesktop::TestDesktop(const Options& options) {
    setenv("XDG_CURRENT_DESKTOP", "Test", 1);
    setenv("XDG_SESSION_TYPE", "x11", 1);
    startServer();
    if (options.hasSessionBus)
        startSessionBus();
    if (!options.hasWindowManager)
        return;
    m_windowManager = start({"openbox", "--sm-disable"});
    // Openbox ignores requests while it starts, so ask until it answers.
    const xcb_window_t probe = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, probe, root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto answers = [&] {
        request(probe, "_NET_REQUEST_FRAME_EXTENTS");
        return !property(probe, "_NET_FRAME_EXTENTS").empty();
    };
    if (!eventually(answers))
        throw std::runtime_error("openbox does not start");
    xcb_destroy_window(m_connection, probe);
}

TestDesktop::~TestDesktop() { stopServer(); }

void TestDesktop::run(std::vector<std::string> command) const { EXPECT_TRUE(start(std::move(command))->waitForEnd()); }

std::unique_ptr<ChildProcess> TestDesktop::start(std::vector<std::string> command) const {
    return std::make_unique<ChildProcess>(std::move(command));
}

void TestDesktop::startServer() {
    // The server picks the number and prints it once it is ready, so two test programs never share a server.
    m_server = start({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset"});
    m_display = ":" + lineOf(*m_server, "Xvfb does not start");
    setenv("DISPLAY", m_display.c_str(), 1);
    m_connection = xcb_connect(m_display.c_str(), nullptr);
    setLayout("us");
}

void TestDesktop::stopServer() {
    m_windowManager.reset();
    if (m_connection != nullptr)
        xcb_disconnect(std::exchange(m_connection, nullptr));
    m_server.reset();
    setenv("DISPLAY", ":54321", 1);  // another server may have the old number by now
}

void TestDesktop::startSessionBus() {
    // The bus can start the accessibility bus and none of the other installed services.
    const fs::path folder = folderOf("XDG_RUNTIME_DIR") / "dbus";
    if (fs::create_directory(folder)) {
        fs::create_symlink("/usr/share/dbus-1/services/org.a11y.Bus.service", folder / "org.a11y.Bus.service");
        std::ofstream(folder / "bus.conf")
            << "<busconfig><type>session</type><listen>unix:dir=" << folder.string() << "</listen><servicedir>"
            << folder.string() << "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
            << "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>\n";
    }
    m_bus = start({"dbus-daemon", "--config-file=" + (folder / "bus.conf").string(), "--nofork", "--print-address=1"});
    setenv("DBUS_SESSION_BUS_ADDRESS", lineOf(*m_bus, "dbus-daemon does not start").c_str(), 1);
}

void TestDesktop::setLayout(const std::string& layout) const {
    run({"setxkbmap", "-rules", "evdev", "-model", "pc105", "-layout", layout, "-option", ""});
}

}  // namespace kinesta::testing
