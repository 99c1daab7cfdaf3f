#include "platform/linux/x11/X11Connection.h"

#include <poll.h>
#include <xcb/xtest.h>

#include <utility>

#include "platform/linux/process/BrokenPipes.h"
#include "platform/linux/x11/X11Connect.h"
#include "platform/linux/x11/XcbWait.h"

namespace kinesta {
namespace {

bool hasTestExtension(xcb_connection_t* connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_test_id);
    if (extension == nullptr || extension->present == 0)
        return false;
    return XcbPointer<xcb_test_get_version_reply_t>(
               xcb_test_get_version_reply(connection, xcb_test_get_version(connection, 2, 2), nullptr)) != nullptr;
}

// XCB learns of the server's end only when it reads or writes, which would be at the first key lost.
bool isAlive(xcb_connection_t* connection) {
    pollfd socket{xcb_get_file_descriptor(connection), 0, 0};
    return xcb_connection_has_error(connection) == 0 && poll(&socket, 1, 0) == 0;
}

}  // namespace

X11Connection::X11Connection(std::string displayName) : m_displayName(std::move(displayName)) { surviveBrokenPipes(); }

X11Connection::~X11Connection() {
    // Requests are read in order, so an answer to the last says that none is left to be lost with the connection.
    if (m_connection != nullptr)
        answers(0.5);
    close();
}

xcb_connection_t* X11Connection::open() {
    if (m_connection != nullptr && isAlive(m_connection))
        return m_connection;
    close();
    int screenNumber = 0;
    m_connection = connectToXServer(m_displayName, &screenNumber);
    if (xcb_connection_has_error(m_connection) != 0) {
        close();
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
    m_canPostInput = hasTestExtension(m_connection);
    ++m_generation;
    return m_connection;
}

bool X11Connection::answers(Seconds patience) {
    xcb_connection_t* connection = open();
    if (connection == nullptr)
        return false;
    const unsigned question = xcb_get_input_focus(connection).sequence;
    const auto answer = awaitXcbReply(connection, question, xcbDeadlineIn(patience));
    if (!answer)
        xcb_discard_reply(connection, question);
    return answer && *answer;
}

void X11Connection::close() {
    if (m_connection != nullptr)
        xcb_disconnect(std::exchange(m_connection, nullptr));
}

}  // namespace kinesta
