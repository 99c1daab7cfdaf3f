#include "platform/linux/launching/XdgWorkspace.h"

#include <unistd.h>

#include <filesystem>
#include <utility>

#include "platform/linux/launching/DesktopEntry.h"
#include "platform/linux/launching/DesktopFile.h"
#include "platform/linux/process/SessionEnvironment.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr const char* kOpener = "xdg-open";

std::string absolutePath(const std::string& path) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.string();
}

}  // namespace

XdgWorkspace::XdgWorkspace(PosixProcessLauncher& launcher, DesktopPortal& portal,
                           FrontmostApplication frontmostApplication, Log log)
    : m_launcher(launcher),
      m_portal(portal),
      m_frontmostApplication(std::move(frontmostApplication)),
      m_log(std::move(log)) {}

void XdgWorkspace::openURL(const std::string& url) {
    if (isInSearchPath(kOpener))
        m_launcher.launch(kOpener, {url});
    else if (!m_portal.openURL(url))
        m_log(translated("Nothing here opens addresses; install xdg-utils."));
}

void XdgWorkspace::openFile(const std::string& path) {
    const std::string file = absolutePath(path);  // absolute, so it cannot be mistaken for an option or an address
    if (isInSearchPath(kOpener))
        m_launcher.launch(kOpener, {file});
    else if (!m_portal.openFile(file))
        m_log(translated("%1 could not be opened: it is missing, or nothing here opens files; install xdg-utils.",
                         {file}));
}

void XdgWorkspace::launchApplication(const std::string& path, const std::vector<std::string>& arguments) {
    const std::string file = absolutePath(path);
    if (!file.ends_with(".desktop")) {
        m_launcher.launch(file, arguments);
        return;
    }
    const auto entry = DesktopEntry::read(file, DesktopFile::messageLocale());
    if (!entry) {
        m_log(entry.error().message);
        return;
    }
    std::vector<std::string> words = entry->command;
    if (entry->runsInTerminal)
        words.insert(words.begin(), {isInSearchPath("x-terminal-emulator") ? "x-terminal-emulator" : "xterm", "-e"});
    words.insert(words.end(), arguments.begin(), arguments.end());
    m_launcher.launch(ProcessDescription{words.front(), {words.begin() + 1, words.end()}, entry->workingDirectory});
}

std::optional<ProcessIdentifier> XdgWorkspace::frontmostApplication() { return m_frontmostApplication(); }

ProcessIdentifier XdgWorkspace::ownProcessIdentifier() { return getpid(); }

}  // namespace kinesta
