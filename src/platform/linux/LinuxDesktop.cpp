#include "platform/linux/LinuxDesktop.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/process/ProgramFiles.h"
#include "platform/linux/process/SessionEnvironment.h"
#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/posix/BrokenPipes.h"
#include "platform/posix/MultitouchTrackpad.h"
#include "platform/posix/SignalMeaning.h"
#include "platform/posix/StreamTrackpad.h"
#include "support/SystemError.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

GestureSystem systemOfThisSession() {
    if (isCurrentDesktop("GNOME"))
        return GestureSystem::gnome;
    return isCurrentDesktop("KDE") ? GestureSystem::kde : GestureSystem::none;
}

SingleInstanceClaim certaintyOf(const SingleInstance& instance) {
    return instance.isCertain() ? SingleInstanceClaim::certain : SingleInstanceClaim::uncertain;
}

/// Why the application could not show anything; Qt would abort without a display.
std::optional<Error> whyNoDisplay() {
    constexpr Seconds kPatience = 2;
    if (std::getenv("QT_QPA_PLATFORM") != nullptr || X11Connection().answers(kPatience) || answersWayland())
        return std::nullopt;
    const char* display = std::getenv("DISPLAY");
    const std::string what = display != nullptr && *display != '\0'
                                 ? "The display " + std::string(display) + " does not answer"
                                 : "There is no display";
    return Error{what +
                 ", so Kinesta cannot show its icon and window. Start it in a graphical session, or use: "
                 "kinesta daemon"};
}

}  // namespace

LinuxDesktop::Places LinuxDesktop::Places::current() {
    return {FileUserDefaults::defaultPath(), ProgramFiles::ofThisProcess().examples(), systemOfThisSession()};
}

void LinuxDesktop::catchSignals(const std::vector<ProgramSignal>& signals, std::function<void(ProgramSignal)> handler) {
    m_signals.emplace(m_mainLoop, signalNumbers(signals),
                      [handler = std::move(handler)](int signal) { handler(meaningOfSignal(signal)); });
}

void LinuxDesktop::surviveClosedPipes() { surviveBrokenPipes(); }

Result<SingleInstanceClaim> LinuxDesktop::claimSingleInstance() {
    auto claimed = SingleInstance::claim(m_places.settings, SingleInstance::Role::daemon);
    if (!claimed)
        return claimed.error();
    m_instance = std::move(*claimed);
    return certaintyOf(*m_instance);
}

Result<std::optional<SingleInstanceClaim>> LinuxDesktop::claimApplication(ApplicationOpening opening) {
    auto claimed = claimForApplication(m_places.settings, sessionApplication(), opening);
    if (!claimed)
        return claimed.error();
    m_instance = std::move(*claimed);
    m_sessionApplication.reset();  // its connection is of no more use
    return m_instance ? std::optional(certaintyOf(*m_instance)) : std::nullopt;
}

Error LinuxDesktop::becomeApplication(const std::vector<std::string>& arguments) {
    if (const auto problem = whyNoDisplay())
        return *problem;
    const std::string application = ProgramFiles::ofThisProcess().application().string();
    std::vector<std::string> words{application};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execv(application.c_str(), pointers.data());
    return {"The Kinesta application cannot be started: " + application + ": " + systemErrorText(errno) +
            ". Install all of Kinesta, or use its subcommands; see: kinesta --help"};
}

SessionApplication& LinuxDesktop::sessionApplication() {
    if (!m_sessionApplication)
        m_sessionApplication.emplace(m_places.settings);
    return *m_sessionApplication;
}

void LinuxDesktop::stopUntilContinued() {
    m_terminal ? m_terminal->stopUntilContinued() : kinesta::stopUntilContinued();
}

FileUserDefaults& LinuxDesktop::fileDefaults() {
    if (!m_defaults)
        m_defaults.emplace(m_places.settings.string(), [this](const std::string& problem) {
            if (m_onSettingsProblem)
                m_onSettingsProblem(problem);
        });
    return *m_defaults;
}

void LinuxDesktop::saveInBackground() {
    fileDefaults().saveInBackground(m_mainLoop, [this] {
        if (m_onDefaultsChange)
            m_onDefaultsChange();
    });
}

bool LinuxDesktop::watchDefaults(std::function<void()> onChange) {
    m_onDefaultsChange = onChange;
    m_watcher.emplace(m_mainLoop, m_places.settings.string(), std::move(onChange));
    return m_watcher->isWatching();
}

std::string LinuxDesktop::howToSet(std::string_view key, const std::string& value) const {
    return translated("set \"%1\" to %2 in %3.", {std::string(key), value, m_places.settings.string()});
}

Result<std::filesystem::path> LinuxDesktop::settingsFolder() {
    const std::filesystem::path folder = m_places.settings.parent_path();
    std::error_code problem;
    if (std::filesystem::create_directories(folder, problem))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, problem);
    if (problem)
        return Error{folder.string() + ": " + systemErrorText(problem.value())};
    return folder;
}

PlatformSettings LinuxDesktop::platformSettings() const {
    return {LinuxActionSettings::choices(), LinuxTrackpad::kSettingKey};
}

LiveTrackpad& LinuxDesktop::trackpad() {
    if (!m_trackpad && m_stream)
        m_trackpad = std::make_unique<StreamTrackpad>(m_mainLoop, m_clock, *m_stream);
    else if (!m_trackpad && m_multitouchLibrary)
        m_trackpad = std::make_unique<MultitouchTrackpad>(
            m_mainLoop, m_clock, m_noPointerEvents,
            LiveTrackpad::Identity{.name = std::filesystem::path(*m_multitouchLibrary).filename().string(),
                                   .path = *m_multitouchLibrary},
            *m_multitouchLibrary);
    else if (!m_trackpad)
        m_trackpad = std::make_unique<LinuxTrackpad>(m_mainLoop, m_clock, fileDefaults());
    return *m_trackpad;
}

ConnectedTrackpads LinuxDesktop::connectedTrackpads() {
    return LinuxTrackpad::connected(fileDefaults(), howToSet(LinuxTrackpad::kSettingKey, translated("its name")));
}

void LinuxDesktop::onActionProblem(Tell tell, ProgramOutput output) {
    m_onActionProblem = std::move(tell);
    m_programOutput = output;
}

LinuxActions& LinuxDesktop::actions() {
    if (!m_actions)
        m_actions.emplace(
            m_clock, fileDefaults(),
            [this](const std::string& problem) {
                if (m_onActionProblem)
                    m_onActionProblem(problem);
            },
            m_programOutput == ProgramOutput::log ? LinuxActions::Output::log : LinuxActions::Output::nowhere);
    return *m_actions;
}

std::optional<Obstacle> LinuxDesktop::obstacleToKey(std::uint16_t keyCode, std::uint64_t flags) {
    return kinesta::obstacleToKey(keyCode, flags);
}

bool LinuxDesktop::typesLetterOf(std::uint16_t keyCode, const std::string& name) {
    return actions().typesLetterOf(keyCode, name);
}

std::optional<Obstacle> LinuxDesktop::obstacleToLaunching(const std::string& application) {
    if (application.ends_with(".desktop")) {
        const auto entry = DesktopEntry::read(application, "C");
        if (!entry)
            return Obstacle{entry.error().message, ""};
        if (const std::string& program = entry->command.front();
            program.starts_with('/') ? ::access(program.c_str(), X_OK) != 0 : !isInSearchPath(program))
            return Obstacle{translated("%1 starts %2, which is not there.", {application, program}),
                            translated("Install that program, or choose another application.")};
    } else if (std::filesystem::is_directory(application) || ::access(application.c_str(), X_OK) != 0) {
        return Obstacle{translated("%1 is not a program that you may start.", {application}),
                        translated("Choose a program or a desktop file (*.desktop).")};
    }
    return std::nullopt;
}

}  // namespace kinesta
