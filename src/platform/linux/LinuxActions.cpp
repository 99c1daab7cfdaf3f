#include "platform/linux/LinuxActions.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "actions/KeyboardLayoutResolver.h"
#include "platform/linux/keyboard/LinuxKeyRecording.h"
#include "platform/linux/keyboard/PostingEventSynthesizer.h"
#include "platform/linux/keyboard/UinputDevice.h"
#include "platform/linux/keyboard/X11Keyboard.h"
#include "platform/linux/keyboard/XkbKeyboardLayout.h"
#include "platform/linux/launching/AutostartLoginItem.h"
#include "platform/linux/launching/DesktopPortal.h"
#include "platform/linux/launching/XdgWorkspace.h"
#include "platform/linux/process/PosixHomeFolders.h"
#include "platform/linux/process/ProgramFiles.h"
#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/session/DesktopNotifications.h"
#include "platform/linux/session/DesktopPermission.h"
#include "platform/linux/session/LinuxSystemVersion.h"
#include "platform/linux/session/MessageBus.h"
#include "platform/linux/session/SessionInputPoster.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "platform/linux/windows/EwmhDesktop.h"
#include "platform/linux/windows/WindowAccessibility.h"
#include "platform/linux/windows/WindowOwnMenus.h"
#include "platform/linux/windows/WindowOwnWindows.h"
#include "platform/linux/windows/WindowTiler.h"
#include "platform/linux/x11/X11Connection.h"
#include "support/Text.h"

namespace kinesta {
namespace {

/// How long desktops take to notice a new input device, at most.
constexpr std::chrono::seconds kNoticingDevice{1};

}  // namespace

struct LinuxActions::Parts {
    Parts(const Clock& clockPort, const UserDefaults& defaultsPort, const Log& log, Output output)
        : clock(clockPort),
          defaults(defaultsPort),
          portal(bus, log),
          launcher({.zsh = "/bin/zsh", .loginShell = {}, .log = log, .output = output}),
          poster(connection, keyboard, defaults, log),
          events(poster, defaults, log),
          workspace(
              launcher, portal, [this] { return desktop.frontmostApplication(); }, log) {}

    DesktopSession session(const DesktopFacts& facts) const {
        return {facts, LinuxActionSettings::read(defaults).inputRoute};
    }

    const Clock& clock;
    const UserDefaults& defaults;
    X11Connection connection;
    X11Keyboard keyboard{connection};
    XkbKeyboardLayout layout{keyboard};
    LinuxKeyRecording keyRecording{layout, defaults};
    MessageBus bus;
    DesktopPortal portal;
    PosixProcessLauncher launcher;
    SessionInputPoster poster;
    PostingEventSynthesizer events;
    EwmhDesktop desktop{connection};
    WindowTiler tiler{desktop};
    AccessibilityBus programs{bus};
    WindowOutcomes outcomes{desktop, programs};
    WindowAccessibility accessibility{desktop, tiler, programs};
    WindowOwnWindows ownWindows{desktop};
    WindowOwnMenus ownMenus{tiler};
    XdgWorkspace workspace;
    AutostartLoginItem loginItem{ProgramFiles::ofThisProcess().program().string(), launcher, workspace};
    DesktopNotifications notificationsOnScreen{bus};
    DesktopPermission permission{poster, notificationsOnScreen, [this] {
                                     const auto facts = DesktopFacts::probeInput(connection, UinputDevice::kPath);
                                     const auto finding = session(facts).finding(DesktopCapability::sendInput);
                                     return finding.why + " " + finding.remedy + " " + finding.command;
                                 }};
    LinuxSystemVersion systemVersion;
    PosixHomeFolders homeFolders;
    InProcessNotifications notifications;
};

LinuxActions::LinuxActions(const Clock& clock, const UserDefaults& defaults, const Log& log, Output output)
    : m_parts(std::make_unique<Parts>(clock, defaults, log, output)) {}

LinuxActions::~LinuxActions() = default;

void LinuxActions::prepareToPost() {
    // Through the virtual device no layout is needed yet, and asking XWayland for it would start XWayland.
    if (!m_parts->poster.usesVirtualDevice())
        m_parts->layout.charactersWithoutModifiers();
}

ActionPorts LinuxActions::ports(const UserDefaults& settings, ActionCuePresenting& cue) {
    Parts& p = *m_parts;
    return {p.clock,     settings,   p.systemVersion, p.homeFolders, p.permission, p.events,        p.layout,
            p.workspace, p.launcher, p.accessibility, p.ownWindows,  p.ownMenus,   p.notifications, cue};
}

InProcessNotifications& LinuxActions::notifications() { return m_parts->notifications; }

LoginItemService& LinuxActions::loginItem() { return m_parts->loginItem; }

WindowOutcomes& LinuxActions::windowOutcomes() { return m_parts->outcomes; }

std::vector<EwmhMonitor> LinuxActions::monitors() {
    auto snapshot = m_parts->desktop.snapshot();
    return snapshot ? std::move(snapshot->monitors) : std::vector<EwmhMonitor>();
}

bool LinuxActions::typesLetterOf(std::uint16_t keyCode, const std::string& name) {
    const std::string letter = lowerCased(name);
    if (letter.size() != 1 || letter[0] < 'a' || letter[0] > 'z')
        return true;
    const std::uint16_t posted = KeyboardLayoutResolver(m_parts->layout).keyCode(name, keyCode);
    const auto layouts = m_parts->layout.charactersOfLayouts();
    return layouts.empty() || std::ranges::any_of(layouts, [&](const KeyboardLayoutCharacters& characters) {
               return posted < characters.size() && lowerCased(characters[posted]) == letter;
           });
}

bool LinuxActions::tilesWindows() {
    const auto snapshot = answersWayland() ? std::nullopt : m_parts->desktop.snapshot();
    return snapshot && snapshot->movesWindows;
}

KeyRecording& LinuxActions::keyRecording() { return m_parts->keyRecording; }

void LinuxActions::letDesktopCatchUp() {
    if (m_parts->poster.usesVirtualDevice() && m_parts->poster.isAvailable())
        std::this_thread::sleep_for(kNoticingDevice);
}

unsigned LinuxActions::roundTrips() const { return m_parts->connection.roundTrips(); }

DesktopSession LinuxActions::session() {
    auto facts = DesktopFacts::probe(m_parts->connection, m_parts->bus, UinputDevice::kPath);
    m_parts->desktop.addTo(facts);
    return m_parts->session(facts);
}

}  // namespace kinesta
