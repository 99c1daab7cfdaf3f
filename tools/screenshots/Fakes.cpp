#include "Fakes.h"

#include <algorithm>

#include "app/SoftwareUpdateController.h"

namespace kinesta {

std::optional<std::string> FakeBundle::string(std::string_view key) const {
    if (!m_hasFeed)
        return std::nullopt;
    if (key == SoftwareUpdateController::feedKey)
        return "https://updates.example.org/feed.json";
    if (key == SoftwareUpdateController::publicKeyKey)
        return "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA=";
    return std::nullopt;
}

void FakeReport::request(Receive receive) {
    Result result;
    result.text = "Kinesta 1.0.0";
    result.findings = {{.subject = FindingSubject::touchpad,
                        .what = "Built-in touchpad",
                        .works = true,
                        .why = "It is being read."},
                       {.subject = FindingSubject::sendInput,
                        .what = "Sending keys and clicks",
                        .works = true,
                        .why = "Through the X server."}};
    if (m_hasFindings) {
        result.findings.push_back({.subject = FindingSubject::windows,
                                   .what = "Tiling windows",
                                   .works = false,
                                   .why = "This desktop lets no program move the windows of others.",
                                   .remedy = "Log in to an X11 session to use it."});
        result.findings.push_back({.subject = FindingSubject::sendInput,
                                   .what = "Sending keys and clicks",
                                   .works = false,
                                   .why = "/dev/uinput may not be written by you.",
                                   .remedy = "Run this once in a terminal, then log in again.",
                                   .command = "sudo usermod --append --groups input $USER",
                                   .rulesInNeed = 3});
        result.findings.push_back({.subject = FindingSubject::shellCommands,
                                   .what = "Shell commands",
                                   .works = false,
                                   .why = "They are switched off.",
                                   .remedy = "Switch them on in Settings.",
                                   .isSetting = true,
                                   .rulesInNeed = 1});
    }
    m_mainLoop.post([receive = std::move(receive), result = std::move(result)] { receive(result); });
}

std::vector<InstalledApplication> FakeApplications::all() const {
    return {{"Files", "/usr/share/applications/files.desktop", {}},
            {"Terminal", "/usr/share/applications/terminal.desktop", {}},
            {"Web Browser", "/usr/share/applications/browser.desktop", {}}};
}

std::optional<InstalledApplication> FakeApplications::at(const std::string& path) const {
    const auto known = all();
    const auto found = std::ranges::find(known, path, &InstalledApplication::path);
    return found == known.end() ? std::nullopt : std::optional(*found);
}

}  // namespace kinesta
