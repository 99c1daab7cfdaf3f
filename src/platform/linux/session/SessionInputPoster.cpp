#include "platform/linux/session/SessionInputPoster.h"

#include <utility>

#include "platform/linux/session/DesktopFacts.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr Seconds kPatience = 0.5;

}  // namespace

SessionInputPoster::SessionInputPoster(X11Connection& connection, X11Keyboard& keyboard, const UserDefaults& defaults,
                                       Log log)
    : m_connection(connection), m_defaults(defaults), m_log(std::move(log)), m_xServer(connection, keyboard) {}

bool SessionInputPoster::isAvailable() {
    InputPoster& chosen = poster();
    const bool isAvailable = chosen.isAvailable();
    if (&chosen == &m_xServer && std::exchange(m_hasLoggedServer, !isAvailable) == isAvailable && !isAvailable)
        m_log(translated("Keys cannot be posted, for no X server answers; see: kinesta doctor"));
    return isAvailable;
}

InputPoster& SessionInputPoster::poster() {
    if (route() == Route::xServer) {
        m_uinput.reset();
        return m_xServer;
    }
    if (!m_uinput)
        m_uinput.emplace(m_log);
    return *m_uinput;
}

/// The route that suits a session is kept after its X server ends: keys posted through the kernel would reach the
/// console, so they wait for the next server instead.
SessionInputPoster::Route SessionInputPoster::route() {
    const Route wish = LinuxActionSettings::read(m_defaults).inputRoute;
    if (wish != Route::automatic)
        return wish;
    if (m_suited)
        return *m_suited;
    DesktopFacts facts;
    facts.hasWayland = answersWayland();
    if (!facts.hasWayland) {  // checked first, because asking XWayland starts it
        facts.hasX = m_connection.answers(kPatience);
        if (!facts.hasX && m_connection.isHanging())
            return Route::xServer;
        facts.hasXTest = facts.hasX && m_connection.canPostInput();
    }
    if (facts.hasWayland || facts.hasX)
        m_suited = facts.inputRoute(wish);
    return facts.inputRoute(wish);
}

}  // namespace kinesta
