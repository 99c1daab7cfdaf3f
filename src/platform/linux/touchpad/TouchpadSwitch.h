#pragma once

#include <optional>
#include <string>

#include "platform/linux/touchpad/TouchpadScanner.h"
#include "platform/linux/touchpad/X11TouchpadProperties.h"
#include "platform/posix/FileDescriptor.h"

namespace kinesta {

/// Whether the desktop has switched the touchpad off, where that can be known: on X11 from the properties of the input
/// drivers, on GNOME from the stored settings. Elsewhere every touchpad counts as on.
class TouchpadSwitch {
  public:
    struct Desktop {
        /// The X display to ask, if any.
        std::string display;
        /// Where GNOME keeps its settings ("~/.config/dconf"), if this is GNOME.
        std::string dconfDirectory;
        /// Whether the desktop may have a switch whose state we cannot read: any other desktop on Wayland.
        bool isSilent = false;

        /// The desktop that the environment variables describe.
        static Desktop current();
    };

    explicit TouchpadSwitch(const Desktop& desktop = Desktop::current());

    /// Becomes readable when takeChanges() has something to do.
    int fileDescriptor() const { return m_all.number(); }

    /// Whether mode() may return something else than before.
    bool takeChanges();

    /// The user's choice for the touchpad at this device node.
    SendEventsMode mode(const std::string& path);

    /// Why the touchpad at this device node is off now, as a sentence; empty if it is on. Looks for an external mouse
    /// among `devices`.
    std::string whyOff(const std::string& path, const TouchpadScanner& devices);

  private:
    void connect();
    void watch(int descriptor);
    bool drainDirectory();
    SendEventsMode storedMode() const;

    FileDescriptor m_all;  // an epoll of the others
    FileDescriptor m_directory;
    std::string m_dconfDirectory;
    std::string m_display;
    std::optional<X11TouchpadProperties> m_x11;
};

}  // namespace kinesta
