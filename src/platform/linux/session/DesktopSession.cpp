#include "platform/linux/session/DesktopSession.h"

#include <utility>

#include "platform/linux/touchpad/DeviceAccess.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using Route = LinuxActionSettings::InputRoute;

constexpr const char* kStartInSession = TRANSLATABLE("Start Kinesta from within your desktop session.");
constexpr const char* kUseX11 = TRANSLATABLE(
    "Choose your desktop's session “on Xorg” or “X11” at the login screen if you need this for every window.");

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
    DesktopFinding finding{DesktopCapability::sendInput, translated("Sending keys and clicks"), true, "", ""};
    if (m_facts.inputRoute(m_wish) == Route::uinput) {
        finding.works = m_facts.mayUseUinput;
        finding.why = finding.works
                          ? translated(
                                "They go out through a virtual keyboard of the kernel's. Modifier keys that you "
                                "hold yourself meanwhile count as part of a shortcut, so let go of them first.")
                          : translated(
                                "Here they would go out through a virtual keyboard of the kernel's, but /dev/uinput "
                                "is missing or may not be opened.");
        if (!finding.works) {
            finding.remedy = translated("Run once in a terminal:");
            finding.command = uinputAccessCommand();
        }
        return finding;
    }
    finding.works = m_facts.hasXTest;
    finding.isSetting = !m_facts.hasX || !m_facts.hasXTest || m_facts.hasWayland;
    if (!m_facts.hasX) {
        finding.why = translated("The settings ask for the X server, and none answers.");
        finding.remedy = translated(kStartInSession) + " " +
                         translated("Or remove the setting %1.", {std::string(LinuxActionSettings::kInputRoute)});
    } else if (!m_facts.hasXTest) {
        finding.why = translated("The settings ask for the X server, and it was started without the extension XTEST.");
        finding.remedy = translated("Remove the setting %1.", {std::string(LinuxActionSettings::kInputRoute)});
    } else if (m_facts.hasWayland) {
        finding.why = translated(
            "The settings ask for the X server: in a Wayland session only programs that use XWayland get them.");
        finding.remedy =
            translated("Remove the setting %1 to reach all programs.", {std::string(LinuxActionSettings::kInputRoute)});
    } else {
        finding.why = translated("They go out through the X server.");
    }
    return finding;
}

DesktopFinding DesktopSession::keyboardLayout() const {
    DesktopFinding finding{DesktopCapability::keyboardLayout, translated("Following the keyboard layout"), m_facts.hasX,
                           "", ""};
    if (m_facts.hasX) {
        finding.why = translated("Shortcuts follow the layout in force.");
    } else {
        finding.why = translated(
            "Without an X server the layout in force cannot be known: shortcuts follow the one that the system "
            "is set up with.");
        finding.remedy = m_facts.hasWayland
                             ? translated("Switch XWayland on in your desktop if you use more than one layout.")
                             : translated(kStartInSession);
    }
    return finding;
}

DesktopFinding DesktopSession::windows() const {
    DesktopFinding finding{DesktopCapability::windows, translated("Closing and tiling windows"), false, "", ""};
    switch (kind()) {
        case Kind::x11:
            finding.works = m_facts.hasWindowManager && m_facts.closesWindows && m_facts.movesWindows;
            finding.why = windowManagerInWords();
            finding.remedy =
                finding.works ? "" : translated("Start a window manager that follows the desktop standard (EWMH).");
            break;
        case Kind::waylandWithX:
            finding.why = translated(
                "Wayland hides windows from other programs: only those that use XWayland can be reached. For them: %1",
                {windowManagerInWords()});
            finding.remedy = translated(kUseX11);
            break;
        case Kind::wayland:
            finding.why = translated("Wayland hides windows from other programs.");
            finding.remedy = translated(kUseX11);
            break;
        case Kind::none:
            finding.why =
                translated("There is no desktop session here: neither DISPLAY nor WAYLAND_DISPLAY leads to one.");
            finding.remedy = translated(kStartInSession);
            break;
    }
    if (m_facts.hasX && !sendInput().works) {  // one permission covers both
        finding.why += " " + translated("No window is closed or tiled as long as keys and clicks cannot be sent.");
        if (finding.works)
            finding.remedy = translated("Let Kinesta send keys and clicks first.");
        finding.works = false;
    }
    return finding;
}

std::string DesktopSession::windowManagerInWords() const {
    if (!m_facts.hasWindowManager)
        return translated("No window manager that takes such requests runs.");
    const auto say = [this](std::string_view ofNamed, std::string_view ofUnnamed) {
        return m_facts.windowManager.empty() ? translated(ofUnnamed) : translated(ofNamed, {m_facts.windowManager});
    };
    if (!m_facts.closesWindows && !m_facts.movesWindows)
        return say(TRANSLATABLE("The window manager “%1” takes no such requests, or does not answer."),
                   TRANSLATABLE("The window manager takes no such requests, or does not answer."));
    if (!m_facts.movesWindows)
        return say(TRANSLATABLE("The window manager “%1” closes windows for other programs and does not move them."),
                   TRANSLATABLE("The window manager closes windows for other programs and does not move them."));
    if (!m_facts.closesWindows)
        return say(TRANSLATABLE("The window manager “%1” moves windows for other programs and does not close them."),
                   TRANSLATABLE("The window manager moves windows for other programs and does not close them."));
    if (m_facts.takesI3Commands)
        return say(TRANSLATABLE("The window manager “%1” takes such requests; a window that Kinesta tiles leaves its "
                                "layout for that and floats."),
                   TRANSLATABLE("The window manager takes such requests; a window that Kinesta tiles leaves its layout "
                                "for that and floats."));
    return say(TRANSLATABLE("The window manager “%1” takes such requests."),
               TRANSLATABLE("The window manager takes such requests."));
}

DesktopFinding DesktopSession::open() const {
    DesktopFinding finding{DesktopCapability::open, translated("Opening addresses and files"), true, "", ""};
    if (kind() == Kind::none) {
        finding.works = false;
        finding.why = translated("There is no desktop session here in which they could be opened.");
        finding.remedy = translated(kStartInSession);
    } else if (m_facts.hasXdgOpen) {
        finding.why = translated(
            "They are handed to xdg-open, which looks for a program for each kind; whether it has one is "
            "not known here.");
    } else if (m_facts.portal == BusService::answering) {
        finding.why = translated("They are handed to the desktop's portal, which answers.");
    } else {
        finding.works = false;
        finding.why =
            m_facts.portal == BusService::silent
                ? translated("There is no xdg-open, and the desktop's portal does not answer or cannot open things.")
                : translated("There is neither xdg-open nor a desktop portal.");
        finding.remedy = translated("Install xdg-utils:");
        finding.command = "sudo apt install xdg-utils";
    }
    return finding;
}

DesktopFinding DesktopSession::notify() const {
    DesktopFinding finding{DesktopCapability::notify, translated("Showing notifications"), false, "", ""};
    if (!m_facts.hasSessionBus) {
        finding.why = translated("There is no session bus, so Kinesta cannot tell you when it may not do something.");
        finding.remedy = translated(kStartInSession);
    } else if (m_facts.notifications == BusService::absent) {
        finding.why =
            translated("No program shows notifications here, so Kinesta cannot tell you when it may not do something.");
        finding.remedy = translated("Install one:");
        finding.command = "sudo apt install dunst";
    } else if (m_facts.notifications == BusService::silent) {
        finding.why = translated(
            "The program for notifications cannot be started or does not answer, so Kinesta cannot tell you when it "
            "may not do something.");
        finding.remedy = translated(kStartInSession) + " " + translated("If you did, log out and in again.");
    } else {
        finding.works = true;
        finding.why = translated("The program that shows them runs and answers.");
    }
    return finding;
}

DesktopFinding DesktopSession::cue() const {
    DesktopFinding finding{DesktopCapability::cue, translated("Showing the cue of an action"), true, "", ""};
    switch (kind()) {
        case Kind::x11:
            finding.why = translated("The application draws it above all windows.");
            break;
        case Kind::waylandWithX:
            finding.why = translated("The application draws it above all windows, through XWayland.");
            break;
        case Kind::wayland:
            finding.works = m_facts.notifications == BusService::answering;
            finding.why = finding.works
                              ? translated("Wayland lets no program place a window, so it comes as a notification.")
                              : translated("Wayland lets no program place a window, and nothing shows notifications.");
            finding.remedy = finding.works ? "" : translated("Switch XWayland on in your desktop.");
            break;
        case Kind::none:
            finding.works = false;
            finding.why = translated("There is no desktop session here to show it in.");
            finding.remedy = translated(kStartInSession);
            break;
    }
    return finding;
}

}  // namespace kinesta
