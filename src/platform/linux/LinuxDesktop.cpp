#include "platform/linux/LinuxDesktop.h"

#include <unistd.h>

#include <csignal>

#include "platform/linux/StreamTrackpad.h"
#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/process/BrokenPipes.h"
#include "platform/linux/process/SessionEnvironment.h"
#include "support/SystemError.h"

namespace kinesta {
namespace {

/// share/kinesta/examples beside the folder of the running program, both in an installation and in a build tree.
std::filesystem::path examplesOfThisProgram() {
    std::error_code ignored;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return program.parent_path().parent_path() / "share" / "kinesta" / "examples";
}

GestureSystem systemOfThisSession() {
    if (isCurrentDesktop("GNOME"))
        return GestureSystem::gnome;
    return isCurrentDesktop("KDE") ? GestureSystem::kde : GestureSystem::none;
}

ProgramSignal meaningOf(int signal) {
    switch (signal) {
        case SIGHUP:
            return ProgramSignal::reload;
        case SIGTSTP:
            return ProgramSignal::stop;
        default:
            return ProgramSignal::end;
    }
}

}  // namespace

LinuxDesktop::Places LinuxDesktop::Places::current() {
    return {FileUserDefaults::defaultPath(), examplesOfThisProgram(), systemOfThisSession()};
}

void LinuxDesktop::catchSignals(const std::vector<ProgramSignal>& signals, std::function<void(ProgramSignal)> handler) {
    std::vector<int> numbers;
    for (const ProgramSignal signal : signals) {
        switch (signal) {
            case ProgramSignal::end:
                numbers.insert(numbers.end(), {SIGINT, SIGTERM});
                break;
            case ProgramSignal::stop:
                numbers.push_back(SIGTSTP);
                break;
            case ProgramSignal::reload:
                numbers.push_back(SIGHUP);
                break;
        }
    }
    m_signals.emplace(m_mainLoop, numbers, [handler = std::move(handler)](int signal) { handler(meaningOf(signal)); });
}

void LinuxDesktop::surviveClosedPipes() { surviveBrokenPipes(); }

Result<SingleInstanceClaim> LinuxDesktop::claimSingleInstance() {
    auto claimed = SingleInstance::claim(m_places.settings);
    if (!claimed)
        return claimed.error();
    m_instance = std::move(*claimed);
    return m_instance->isCertain() ? SingleInstanceClaim::certain : SingleInstanceClaim::uncertain;
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

bool LinuxDesktop::watchDefaults(std::function<void()> onChange) {
    m_watcher.emplace(m_mainLoop, m_places.settings.string(), std::move(onChange));
    return m_watcher->isWatching();
}

std::string LinuxDesktop::howToSet(std::string_view key, const std::string& value) const {
    return "set \"" + std::string(key) + "\" to " + value + " in " + m_places.settings.string() + ".";
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

LiveTrackpad& LinuxDesktop::trackpad() {
    if (!m_trackpad && m_stream)
        m_trackpad = std::make_unique<StreamTrackpad>(m_mainLoop, m_clock, *m_stream);
    else if (!m_trackpad)
        m_trackpad = std::make_unique<LinuxTrackpad>(m_mainLoop, m_clock, fileDefaults());
    return *m_trackpad;
}

ConnectedTrackpads LinuxDesktop::connectedTrackpads() {
    return LinuxTrackpad::connected(fileDefaults(), howToSet(LinuxTrackpad::kSettingKey, "its name"));
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
            return Obstacle{application + " starts " + program + ", which is not there.",
                            "Install that program, or choose another application."};
    } else if (std::filesystem::is_directory(application) || ::access(application.c_str(), X_OK) != 0) {
        return Obstacle{application + " is not a program that you may start.",
                        "Choose a program or a desktop file (*.desktop)."};
    }
    return std::nullopt;
}

}  // namespace kinesta
