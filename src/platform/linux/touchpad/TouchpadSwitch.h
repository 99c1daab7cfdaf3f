#pragma once

#include <optional>
#include <string>

#include "platform/linux/process/FileDescriptor.h"
#include "platform/linux/touchpad/SendEventsMode.h"
#include "platform/linux/touchpad/TouchpadScanner.h"
#include "platform/linux/touchpad/X11TouchpadProperties.h"

namespace kinesta {

/// Whether the desktop has switched the touchpad off, where that can be known: from the input drivers' properties on
/// X11, whatever the desktop; from the stored settings on GNOME. Elsewhere every touchpad counts as on.
class TouchpadSwitch {
  public:
    struct Desktop {
        /// The X display to ask, if any.
        std::string display;
        /// Where GNOME keeps its settings ("~/.config/dconf"), if this is GNOME.
        std::string dconfDirectory;
        /// Whether it may have a switch that nothing tells of: any other on Wayland.
        bool isSilent = false;

        /// What the environment tells.
        static Desktop current();
    };

    explicit TouchpadSwitch(const Desktop& desktop = Desktop::current());

    /// Becomes readable when takeChanges() has something to do.
    int fileDescriptor() const { return m_all.number(); }

    /// Whether mode() may have another answer than before.
    bool takeChanges();

    /// What has been chosen for the touchpad at this device node.
    SendEventsMode mode(const std::string& path);

    /// Why the touchpad at this device node is off now, as a sentence; empty if it is on. `devices` tells whether there
    /// is an external mouse.
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
