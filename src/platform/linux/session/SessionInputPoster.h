#pragma once

#include <optional>

#include "platform/linux/keyboard/UinputInputPoster.h"
#include "platform/linux/keyboard/X11InputPoster.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Posts the way that suits the session, or the one that the settings ask for. What suits is found out anew until there
/// is a session: whoever starts us may do so before the display server is up. Main thread only.
class SessionInputPoster final : public InputPoster {
  public:
    /// Is told, as one sentence, why nothing could be posted; once for every new reason.
    using Log = UinputInputPoster::Log;

    /// Connection, keyboard and defaults must outlive this. A virtual device, if that is the way, is made at once.
    SessionInputPoster(X11Connection& connection, X11Keyboard& keyboard, const UserDefaults& defaults, Log log);

    bool isAvailable() override;
    bool canPost(std::uint16_t code) override { return poster().canPost(code); }
    ModifierSituation modifiers() override { return poster().modifiers(); }
    std::optional<DesktopLocation> pointerLocation() override { return poster().pointerLocation(); }
    bool post(std::span<const InputTransition> transitions) override { return poster().post(transitions); }

    /// Whether keys take the way through the kernel, which the desktop takes a moment to notice.
    bool usesVirtualDevice() { return &poster() != &m_xServer; }

  private:
    enum class Suited { unknown, xServer, virtualDevice };

    InputPoster& poster();
    Suited findOut();

    X11Connection& m_connection;
    const UserDefaults& m_defaults;
    Log m_log;
    X11InputPoster m_xServer;
    std::optional<UinputInputPoster> m_uinput;
    Suited m_suited = Suited::unknown;
    bool m_hasToldOfServer = false;
};

}  // namespace kinesta
