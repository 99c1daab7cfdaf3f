#include "platform/linux/launching/AutostartLoginItem.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <sstream>
#include <system_error>

#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/launching/DesktopFile.h"
#include "platform/linux/process/SessionEnvironment.h"
#include "platform/linux/process/UserDatabase.h"
#include "platform/linux/settings/DurableFile.h"
#include "support/SystemError.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::string folder() { return configurationFolder() + "/autostart"; }

std::string file() { return folder() + "/com.orvane.kinesta.desktop"; }

/// Whether a list "GNOME;KDE;" names the running desktop.
bool namesThisDesktop(const std::string& list) {
    std::istringstream names(list);
    for (std::string name; std::getline(names, name, ';');)
        if (!name.empty() && isCurrentDesktop(name))
            return true;
    return false;
}

bool isSwitchedOff(const DesktopFile& entry) {
    if (entry.value("Hidden") == "true" || namesThisDesktop(entry.value("NotShowIn")))
        return true;
    if (const std::string only = entry.value("OnlyShowIn"); !only.empty() && !namesThisDesktop(only))
        return true;
    // X-GNOME-Autostart-enabled, and the same of other desktops.
    for (const auto& [key, value] : entry.keys())
        if (key.starts_with("X-") && key.ends_with("-Autostart-enabled") && value == "false")
            return true;
    return false;
}

bool canBeStarted(const DesktopEntry& entry) {
    const std::string& program = entry.command.front();
    return program.find('/') == std::string::npos ? isInSearchPath(program) : ::access(program.c_str(), X_OK) == 0;
}

/// Where a desktop shows what starts at login.
struct Pane {
    const char* desktop;
    const char* program;
    const char* argument;
};
constexpr std::array<Pane, 8> kPanes{{
    {"KDE", "systemsettings", "kcm_autostart"},
    {"KDE", "systemsettings5", "kcm_autostart"},
    {"XFCE", "xfce4-session-settings", nullptr},
    {"MATE", "mate-session-properties", nullptr},
    {"X-Cinnamon", "cinnamon-settings", "startup"},
    {"LXQt", "lxqt-config-session", nullptr},
    {"GNOME", "gnome-session-properties", nullptr},
    {"GNOME", "gnome-tweaks", nullptr},
}};

Error failure(const std::string& path, const std::error_code& reason) {
    return {translated("The start at login cannot be changed: %1", {path + ": " + systemErrorText(reason.value())})};
}

}  // namespace

LoginItemStatus AutostartLoginItem::status() const {
    std::error_code ignored;
    if (!std::filesystem::exists(std::filesystem::symlink_status(file(), ignored)))
        return LoginItemStatus::notRegistered;
    if (const auto keys = DesktopFile::read(file()); keys && isSwitchedOff(*keys))
        return LoginItemStatus::requiresApproval;
    const auto entry = DesktopEntry::read(file(), "C");
    return entry && canBeStarted(*entry) ? LoginItemStatus::enabled : LoginItemStatus::notFound;
}

Outcome AutostartLoginItem::registerItem() {
    if (status() == LoginItemStatus::requiresApproval)
        return success();
    std::error_code problem;
    std::filesystem::create_directories(folder(), problem);
    if (problem)
        return failure(folder(), problem);
    const auto target = DurableFile::at(file());
    if (!target)
        return target.error();
    // Without the file's lock, which would stay behind in a folder of the desktop's: only the one application writes.
    const Outcome written = target->replace(
        "[Desktop Entry]\nType=Application\nName=Kinesta\n"
        "Comment=Trackpad gestures that run what you choose\n"
        "Icon=com.orvane.kinesta\nExec=" +
        DesktopFile::quoted(m_program) + " --background\nTerminal=false\n");
    if (!written)
        return Error{translated("The start at login cannot be changed: %1", {written.error().message})};
    return success();
}

Outcome AutostartLoginItem::unregisterItem() {
    std::error_code problem;
    std::filesystem::remove(file(), problem);
    return problem ? Outcome(failure(file(), problem)) : success();
}

Outcome AutostartLoginItem::openSettings() {
    for (const Pane& pane : kPanes) {
        if (!isCurrentDesktop(pane.desktop) || !isInSearchPath(pane.program))
            continue;
        m_launcher.launch(pane.program, pane.argument != nullptr ? std::vector<std::string>{pane.argument}
                                                                 : std::vector<std::string>());
        return success();
    }
    m_workspace.openFile(folder());
    return Error{translated(
        "This desktop has no settings for what starts at login. To allow it, delete %1 and switch it on again.",
        {file()})};
}

}  // namespace kinesta
