#pragma once

#include <optional>

#include "platform/linux/keyboard/UinputInputPoster.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Posts in the way that suits the session, or that the settings ask for. Looks for a session again until there is one:
/// Kinesta may start before the display server is up. Main thread only.
class SessionInputPoster final : public InputPoster {
  public:
    /// Receives one sentence when nothing could be posted, once for each new reason.
    using Log = UinputInputPoster::Log;

    /// Connection, keyboard and defaults must outlive this. Does not use them yet.
    SessionInputPoster(X11Connection& connection, X11Keyboard& keyboard, const UserDefaults& defaults, Log log);

    bool isAvailable() override;
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override { return poster().modifiersFor(code); }
    std::optional<DesktopLocation> pointerLocation() override { return poster().pointerLocation(); }
    bool post(std::span<const InputTransition> transitions) override { return poster().post(transitions); }

    /// Whether keys go through a virtual device in the kernel, which the desktop takes a moment to notice.
    bool usesVirtualDevice() { return &poster() != &m_xServer; }

  private:
    using Route = LinuxActionSettings::InputRoute;

    InputPoster& poster();
    Route route();

    X11Connection& m_connection;
    const UserDefaults& m_defaults;
    Log m_log;
    X11InputPoster m_xServer;
    std::optional<UinputInputPoster> m_uinput;
    std::optional<Route> m_suited;
    bool m_hasLoggedServer = false;
};

}  // namespace kinesta
