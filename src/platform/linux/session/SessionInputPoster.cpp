#include "platform/linux/session/SessionInputPoster.h"

#include <utility>

#include "platform/linux/session/DesktopFacts.h"

namespace kinesta {

SessionInputPoster::SessionInputPoster(X11Connection& connection, X11Keyboard& keyboard, const UserDefaults& defaults,
                                       Log log)
    : m_connection(connection), m_defaults(defaults), m_log(std::move(log)), m_xServer(connection, keyboard) {
    poster();
}

bool SessionInputPoster::isAvailable() {
    InputPoster& chosen = poster();
    const bool isAvailable = chosen.isAvailable();
    if (&chosen == &m_xServer && std::exchange(m_hasToldOfServer, !isAvailable) == isAvailable && !isAvailable)
        m_log("Keys cannot be posted, for no X server answers; see: kinesta doctor");
    return isAvailable;
}

InputPoster& SessionInputPoster::poster() {
    using Route = LinuxActionSettings::InputRoute;
    const Route wish = LinuxActionSettings::read(m_defaults).inputRoute;
    if (wish == Route::automatic && m_suited == Suited::unknown)
        m_suited = findOut();
    // Without any session a virtual device is the only way that there may be.
    if (wish == Route::automatic ? m_suited == Suited::xServer : wish == Route::xServer) {
        m_uinput.reset();
        return m_xServer;
    }
    if (!m_uinput)
        m_uinput.emplace(m_log);
    return *m_uinput;
}

/// A session stays what it was. When an X server ends, there is none until the next one answers: keys that took the
/// way through the kernel meanwhile would reach whatever has the console.
SessionInputPoster::Suited SessionInputPoster::findOut() {
    if (answersWayland())  // asked first: to ask XWayland is to start it
        return Suited::virtualDevice;
    if (m_connection.open() == nullptr)
        return Suited::unknown;
    return m_connection.canPostInput() ? Suited::xServer : Suited::virtualDevice;
}

}  // namespace kinesta
