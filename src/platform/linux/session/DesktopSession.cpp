#include "platform/linux/session/DesktopSession.h"

#include <utility>

#include "platform/linux/touchpad/DeviceAccess.h"

namespace kinesta {
namespace {

using Route = LinuxActionSettings::InputRoute;

constexpr const char* kStartInSession = "Start Kinesta from within your desktop session.";
constexpr const char* kUseX11 =
    "Choose your desktop's session “on Xorg” or “X11” at the login screen if you need this for every window.";

}  // namespace

DesktopSession::DesktopSession(DesktopFacts facts, Route wish) : m_facts(std::move(facts)), m_wish(wish) {}

DesktopSession::Kind DesktopSession::kind() const {
    if (m_facts.hasWayland)
        return m_facts.hasX ? Kind::waylandWithX : Kind::wayland;
    return m_facts.hasX ? Kind::x11 : Kind::none;
}

std::vector<DesktopFinding> DesktopSession::findings() const {
    return {sendInput(), keyboardLayout(), windows(), open(), notify(), cue()};
}

DesktopFinding DesktopSession::finding(DesktopCapability capability) const {
    return findings()[static_cast<std::size_t>(capability)];
}

DesktopFinding DesktopSession::sendInput() const {
    DesktopFinding finding{DesktopCapability::sendInput, "Sending keys and clicks", true, "", ""};
    if (m_facts.inputRoute(m_wish) == Route::uinput) {
        finding.works = m_facts.mayUseUinput;
        finding.why = finding.works
                          ? "They go out through a virtual keyboard of the kernel's. Modifier keys that you "
                            "hold yourself meanwhile count as part of a shortcut, so let go of them first."
                          : "Here they would go out through a virtual keyboard of the kernel's, but /dev/uinput "
                            "is missing or may not be opened.";
        if (!finding.works) {
            finding.remedy = "Run once in a terminal:";
            finding.command = uinputAccessCommand();
        }
        return finding;
    }
    finding.works = m_facts.hasXTest;
    finding.isSetting = !m_facts.hasX || !m_facts.hasXTest || m_facts.hasWayland;
    if (!m_facts.hasX) {
        finding.why = "The settings ask for the X server, and none answers.";
        finding.remedy = std::string(kStartInSession) + " Or remove the setting " +
                         std::string(LinuxActionSettings::kInputRoute) + ".";
    } else if (!m_facts.hasXTest) {
        finding.why = "The settings ask for the X server, and it was started without the extension XTEST.";
        finding.remedy = "Remove the setting " + std::string(LinuxActionSettings::kInputRoute) + ".";
    } else if (m_facts.hasWayland) {
        finding.why =
            "The settings ask for the X server: in a Wayland session only programs that use XWayland get them.";
        finding.remedy =
            "Remove the setting " + std::string(LinuxActionSettings::kInputRoute) + " to reach all programs.";
    } else {
        finding.why = "They go out through the X server.";
    }
    return finding;
}

DesktopFinding DesktopSession::keyboardLayout() const {
    DesktopFinding finding{DesktopCapability::keyboardLayout, "Following the keyboard layout", m_facts.hasX, "", ""};
    if (m_facts.hasX) {
        finding.why = "Shortcuts follow the layout in force.";
    } else {
        finding.why =
            "Without an X server the layout in force cannot be known: shortcuts follow the one that the system "
            "is set up with.";
        finding.remedy = m_facts.hasWayland ? "Switch XWayland on in your desktop if you use more than one layout."
                                            : kStartInSession;
    }
    return finding;
}

DesktopFinding DesktopSession::windows() const {
    DesktopFinding finding{DesktopCapability::windows, "Closing and tiling windows", false, "", ""};
    switch (kind()) {
        case Kind::x11:
            finding.works = m_facts.hasWindowManager && m_facts.closesWindows && m_facts.movesWindows;
            finding.why = windowManagerInWords();
            finding.remedy = finding.works ? "" : "Start a window manager that follows the desktop standard (EWMH).";
            break;
        case Kind::waylandWithX:
            finding.why =
                "Wayland hides windows from other programs: only those that use XWayland can be reached. For them: " +
                windowManagerInWords();
            finding.remedy = kUseX11;
            break;
        case Kind::wayland:
            finding.why = "Wayland hides windows from other programs.";
            finding.remedy = kUseX11;
            break;
        case Kind::none:
            finding.why = "There is no desktop session here: neither DISPLAY nor WAYLAND_DISPLAY leads to one.";
            finding.remedy = kStartInSession;
            break;
    }
    return finding;
}

std::string DesktopSession::windowManagerInWords() const {
    if (!m_facts.hasWindowManager)
        return "No window manager that takes such requests runs.";
    const std::string name =
        m_facts.windowManager.empty() ? "The window manager" : "The window manager “" + m_facts.windowManager + "”";
    if (!m_facts.closesWindows && !m_facts.movesWindows)
        return name + " takes no such requests, or does not answer.";
    if (!m_facts.movesWindows)
        return name + " closes windows for other programs and does not move them.";
    if (!m_facts.closesWindows)
        return name + " moves windows for other programs and does not close them.";
    if (m_facts.takesI3Commands)
        return name + " takes such requests; a window that Kinesta tiles leaves its layout for that and floats.";
    return name + " takes such requests.";
}

DesktopFinding DesktopSession::open() const {
    DesktopFinding finding{DesktopCapability::open, "Opening addresses and files", true, "", ""};
    if (kind() == Kind::none) {
        finding.works = false;
        finding.why = "There is no desktop session here in which they could be opened.";
        finding.remedy = kStartInSession;
    } else if (m_facts.hasXdgOpen) {
        finding.why =
            "They are handed to xdg-open, which looks for a program for each kind; whether it has one is "
            "not known here.";
    } else if (m_facts.portal == BusService::answering) {
        finding.why = "They are handed to the desktop's portal, which answers.";
    } else {
        finding.works = false;
        finding.why = m_facts.portal == BusService::silent
                          ? "There is no xdg-open, and the desktop's portal does not answer or cannot open things."
                          : "There is neither xdg-open nor a desktop portal.";
        finding.remedy = "Install xdg-utils:";
        finding.command = "sudo apt install xdg-utils";
    }
    return finding;
}

DesktopFinding DesktopSession::notify() const {
    DesktopFinding finding{DesktopCapability::notify, "Showing notifications", false, "", ""};
    if (!m_facts.hasSessionBus) {
        finding.why = "There is no session bus, so Kinesta cannot tell you when it may not do something.";
        finding.remedy = kStartInSession;
    } else if (m_facts.notifications == BusService::absent) {
        finding.why = "No program shows notifications here, so Kinesta cannot tell you when it may not do something.";
        finding.remedy = "Install one:";
        finding.command = "sudo apt install dunst";
    } else if (m_facts.notifications == BusService::silent) {
        finding.why =
            "The program for notifications cannot be started or does not answer, so Kinesta cannot tell you when it "
            "may not do something.";
        finding.remedy = std::string(kStartInSession) + " If you did, log out and in again.";
    } else {
        finding.works = true;
        finding.why = "The program that shows them runs and answers.";
    }
    return finding;
}

DesktopFinding DesktopSession::cue() const {
    DesktopFinding finding{DesktopCapability::cue, "Showing the cue of an action", true, "", ""};
    switch (kind()) {
        case Kind::x11:
            finding.why = "The application draws it above all windows.";
            break;
        case Kind::waylandWithX:
            finding.why = "The application draws it above all windows, through XWayland.";
            break;
        case Kind::wayland:
            finding.works = m_facts.notifications == BusService::answering;
            finding.why = finding.works ? "Wayland lets no program place a window, so it comes as a notification."
                                        : "Wayland lets no program place a window, and nothing shows notifications.";
            finding.remedy = finding.works ? "" : "Switch XWayland on in your desktop.";
            break;
        case Kind::none:
            finding.works = false;
            finding.why = "There is no desktop session here to show it in.";
            finding.remedy = kStartInSession;
            break;
    }
    return finding;
}

}  // namespace kinesta
