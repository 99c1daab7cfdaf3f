#include "app/SoftwareRelease.h"

#include <algorithm>

namespace kinesta {
namespace {

/// Takes the first number of a version, as digits without leading zeros, so that no number is too large.
std::string_view takeNumber(std::string_view& version) {
    const std::size_t end = std::min(version.find('.'), version.size());
    std::string_view number = version.substr(0, end);
    version.remove_prefix(std::min(end + 1, version.size()));
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

bool runs(const RunningSystem& running, const SoftwareRelease& release) {
    return release.system == running.system && release.architecture == running.architecture &&
           (release.minimumSystem.empty() || !isOlder(running.systemVersion, release.minimumSystem));
}

}  // namespace

bool isVersion(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos &&
           text.find("..") == std::string_view::npos && !text.starts_with('.') && !text.ends_with('.');
}

bool isOlder(std::string_view a, std::string_view b) {
    while (!a.empty() || !b.empty()) {
        const std::string_view first = takeNumber(a);
        const std::string_view second = takeNumber(b);
        if (first.size() != second.size())
            return first.size() < second.size();
        if (first != second)
            return first < second;
    }
    return false;
}

const SoftwareRelease* newestRelease(std::span<const SoftwareRelease> releases, const RunningSystem& running) {
    const SoftwareRelease* newest = nullptr;
    for (const SoftwareRelease& release : releases)
        if (runs(running, release) && isOlder(newest ? newest->version : running.version, release.version))
            newest = &release;
    return newest;
}

}  // namespace kinesta
