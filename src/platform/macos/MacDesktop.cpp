#include "platform/macos/MacDesktop.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>

#include "platform/macos/MacFindings.h"
#include "platform/macos/accessibility/MacAccessibilityElements.h"
#include "platform/macos/accessibility/MacAccessibilityPermission.h"
#include "platform/macos/application/MacApplicationNotifications.h"
#include "platform/macos/application/MacOwnMenus.h"
#include "platform/macos/application/MacOwnWindows.h"
#include "platform/macos/application/MacSignalListener.h"
#include "platform/macos/events/MacEventSynthesizer.h"
#include "platform/macos/keyboard/MacKeyRecording.h"
#include "platform/macos/keyboard/MacKeyboardLayout.h"
#include "platform/macos/login/MacLoginItemService.h"
#include "platform/macos/pointer/MacPointerEventMonitoring.h"
#include "platform/macos/settings/MacUserDefaults.h"
#include "platform/macos/workspace/MacHomeFolders.h"
#include "platform/macos/workspace/MacProcessLauncher.h"
#include "platform/macos/workspace/MacSystemVersion.h"
#include "platform/macos/workspace/MacWorkspace.h"
#include "platform/posix/BrokenPipes.h"
#include "platform/posix/MultitouchTrackpad.h"
#include "platform/posix/PosixDynamicLibrary.h"
#include "platform/posix/SignalMeaning.h"
#include "platform/posix/StreamTrackpad.h"
#include "support/SystemError.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::chrono::seconds kLongestHandOver(3);  // the system answers within tenths of a second

std::filesystem::path settingsFolderIn(const HomeFolders& homes) {
    return std::filesystem::path(homes.homeFolder("").value_or("")) / "Library" / "Application Support" / "Kinesta";
}

SingleInstanceClaim certaintyOf(const SingleInstance& instance) {
    return instance.isCertain() ? SingleInstanceClaim::certain : SingleInstanceClaim::uncertain;
}

/// The accessibility interface confirms a request, not what a window does with it.
class UntoldOutcomes final : public WindowActionOutcomes {
  public:
    void begin() override {}
    Outcome settle(Seconds) override { return Outcome::unknown; }
    std::string obstacle(Kind) override { return {}; }
};

/// Why the framework's library gives no trackpad; empty if it gives one. Starts none, so that frames that are read
/// meanwhile go on.
std::string problemOfTrackpad(const std::string& path) {
    const auto library = PosixDynamicLibrary::open(path);
    void* const create = library ? library->symbol("MTDeviceCreateDefault") : nullptr;
    if (create == nullptr)
        return translated("%1 cannot be loaded, so no trackpad can be read.", {path});
    // The device is not released: whether it may be is unknown.
    return reinterpret_cast<void* (*)()>(create)() != nullptr ? "" : translated("No multi-touch trackpad was found.");
}

}  // namespace

/// Everything that actions need.
struct MacDesktop::Actions {
    explicit Actions(std::function<void(const std::string&)> tell) : launcher(std::move(tell), handOvers) {}

    MacSystemVersion systemVersion;
    MacAccessibilityPermission permission;
    MacEventSynthesizer events;
    MacKeyboardLayout layout;
    MacKeyRecording keyRecording{layout};
    HandOvers handOvers;
    MacWorkspace workspace{handOvers};
    MacProcessLauncher launcher;
    MacAccessibilityElements accessibility;
    MacOwnWindows ownWindows;
    MacOwnMenus ownMenus;
    MacApplicationNotifications notifications;
    UntoldOutcomes outcomes;
};

MacDesktop::MacDesktop(MainLoop& mainLoop, MacProgramFiles files)
    : m_mainLoop(mainLoop),
      m_files(std::move(files)),
      m_settingsFolder(settingsFolderIn(MacHomeFolders())),
      m_runningApplication(claimPlace(), m_files.bundle),
      m_homeFolders(std::make_unique<MacHomeFolders>()),
      m_loginItem(std::make_unique<MacLoginItemService>()),
      m_multitouchLibrary(MultitouchSupportContactProvider::kFrameworkPath) {}

// A start that is still on its way may report a problem, for which the main loop is needed.
MacDesktop::~MacDesktop() { finishActions(); }

void MacDesktop::catchSignals(const std::vector<ProgramSignal>& signals, std::function<void(ProgramSignal)> handler) {
    m_signals = std::make_unique<MacSignalListener>(
        m_mainLoop, signalNumbers(signals),
        [handler = std::move(handler)](int signal) { handler(meaningOfSignal(signal)); });
}

void MacDesktop::surviveClosedPipes() { surviveBrokenPipes(); }

Error MacDesktop::becomeApplication(const std::vector<std::string>& arguments) {
    if (m_files.bundle.empty())
        return {
            "This program is no part of Kinesta.app, so it cannot start the application. Use its subcommands; see: "
            "kinesta --help"};
    std::vector<std::string> words = MacRunningApplication::opening(m_files.bundle);
    if (!arguments.empty())
        words.emplace_back("--args");
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execv(pointers.front(), pointers.data());
    return {words.front() + " cannot be started: " + systemErrorText(errno) + "."};
}

Result<SingleInstanceClaim> MacDesktop::claimSingleInstance() {
    auto claimed = SingleInstance::claim(claimPlace(), SingleInstance::Role::daemon);
    if (!claimed)
        return claimed.error();
    m_instance = std::move(*claimed);
    return certaintyOf(*m_instance);
}

Result<std::optional<SingleInstanceClaim>> MacDesktop::claimApplication(ApplicationOpening opening) {
    using Claim = std::optional<SingleInstanceClaim>;
    constexpr int kAttempts = 20;
    Error problem;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        auto claimed = SingleInstance::claim(claimPlace(), SingleInstance::Role::application);
        if (claimed) {
            m_instance = std::move(*claimed);
            return Claim(certaintyOf(*m_instance));
        }
        problem = claimed.error();
        const auto holder = SingleInstance::holder(claimPlace());
        if (!holder)
            continue;  // it has just ended, or not yet told what it is
        if (holder->role == SingleInstance::Role::daemon) {
            if (!endProcess(holder->process, SIGUSR1, MacRunningApplication::kPatience))
                return Error{"The Kinesta daemon was asked to make room but does not end; to end it: kill -9 " +
                             std::to_string(holder->process)};
        } else if (opening == ApplicationOpening::inBackground) {
            return Claim();
        } else if (const Outcome shown = m_runningApplication.ask(ApplicationRequest::show)) {
            return Claim();
        } else if (m_runningApplication.isRunning()) {
            return shown.error();
        }
    }
    return problem;
}

void MacDesktop::stopUntilContinued() {
    const bool hasTerminal = m_terminal.has_value();
    m_terminal.reset();
    if (m_signals)
        m_signals->stopUntilContinued();
    else
        kinesta::stopUntilContinued();
    if (hasTerminal)
        m_terminal.emplace();
}

MacUserDefaults& MacDesktop::macDefaults() {
    if (!m_defaults)
        m_defaults = std::make_unique<MacUserDefaults>(kIdentifier);
    return *m_defaults;
}

UserDefaults& MacDesktop::defaults() { return macDefaults(); }

bool MacDesktop::reloadDefaults() { return macDefaults().reload(); }

Outcome MacDesktop::lastSaving() { return macDefaults().save(); }

bool MacDesktop::watchDefaults(std::function<void()> onChange) {
    macDefaults().watch(std::move(onChange));
    return true;
}

std::string MacDesktop::howToSet(std::string_view key, const std::string& value) const {
    const std::string type = value == "true" || value == "false" ? "-bool " : "";
    return translated("set it in a terminal: %1",
                      {"defaults write " + std::string(kIdentifier) + " " + std::string(key) + " " + type + value});
}

Result<std::filesystem::path> MacDesktop::settingsFolder() {
    std::error_code problem;
    std::filesystem::create_directories(m_settingsFolder, problem);
    if (problem)
        return Error{m_settingsFolder.string() + ": " + systemErrorText(problem.value())};
    return m_settingsFolder;
}

LiveTrackpad& MacDesktop::trackpad() {
    if (!m_trackpad && m_stream) {
        m_trackpad = std::make_unique<StreamTrackpad>(m_mainLoop, m_clock, *m_stream);
    } else if (!m_trackpad) {
        m_pointerEvents = std::make_unique<MacPointerEventMonitoring>();
        m_trackpad = std::make_unique<MultitouchTrackpad>(
            m_mainLoop, m_clock, *m_pointerEvents,
            LiveTrackpad::Identity{
                .name = translated("Trackpad"), .path = m_multitouchLibrary, .canTellPressure = true},
            m_multitouchLibrary);
    }
    return *m_trackpad;
}

ConnectedTrackpads MacDesktop::connectedTrackpads() {
    ConnectedTrackpad trackpad;
    trackpad.name = translated("Trackpad");
    trackpad.path = m_multitouchLibrary;
    trackpad.isBuiltIn = true;
    trackpad.problem = problemOfTrackpad(m_multitouchLibrary);
    trackpad.isChosen = true;
    if (trackpad.problem.empty())
        trackpad.axes = {{0, 1}, {0, 1}, 0};
    // Only monitors of pointer events would tell, and only when someone presses.
    trackpad.canTellPressure = true;
    return {{trackpad}, {}};
}

void MacDesktop::onActionProblem(Tell tell, ProgramOutput) {
    // Started programs inherit our own output.
    m_onActionProblem = std::move(tell);
}

MacDesktop::Actions& MacDesktop::actions() {
    if (!m_actions)
        m_actions = std::make_unique<Actions>([tell = m_onActionProblem](const std::string& problem) {
            if (tell)
                tell(problem);
        });
    return *m_actions;
}

ActionPorts MacDesktop::actionPorts(const UserDefaults& settings) {
    Actions& a = actions();
    return {m_clock,     settings,   a.systemVersion, *m_homeFolders, a.permission, a.events,        a.layout,
            a.workspace, a.launcher, a.accessibility, a.ownWindows,   a.ownMenus,   a.notifications, *m_cue};
}

void MacDesktop::prepareToPost() { static_cast<void>(actions().layout.charactersWithoutModifiers()); }

ApplicationNotifications& MacDesktop::notifications() { return actions().notifications; }

WindowActionOutcomes& MacDesktop::windowOutcomes() { return actions().outcomes; }

void MacDesktop::finishActions() {
    if (m_actions)
        m_actions->handOvers.wait(kLongestHandOver);
    m_actions.reset();
}

std::vector<DesktopFinding> MacDesktop::findings() {
    Actions& a = actions();
    return macFindings(a.permission, a.layout, a.systemVersion);
}

const HomeFolders& MacDesktop::homeFolders() const { return *m_homeFolders; }

bool MacDesktop::tilesWindows() { return actions().systemVersion.majorVersion() >= kFirstVersionThatTiles; }

KeyRecording& MacDesktop::keyRecording() { return actions().keyRecording; }

std::optional<Obstacle> MacDesktop::obstacleToLaunching(const std::string& application) {
    if (application.ends_with(".app") && std::filesystem::is_directory(application))
        return std::nullopt;
    return Obstacle{translated("%1 is no application.", {application}),
                    translated("Choose an application: a folder whose name ends in .app.")};
}

}  // namespace kinesta
