#include "platform/linux/touchpad/TouchpadCandidate.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>

#include "support/Translation.h"

namespace kinesta {
namespace {

/// "/dev/input/by-path/…" is a link to the node that candidates are known by.
std::string withoutLinks(const std::string& path) {
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(path, error);
    return error ? path : resolved.string();
}

}  // namespace

const TouchpadCandidate* chooseTouchpad(std::span<const TouchpadCandidate> candidates, const std::string& wanted,
                                        const std::string& currentInputName) {
    const std::string wantedPath = wanted.starts_with('/') ? withoutLinks(wanted) : std::string();
    const auto isWanted = [&](const TouchpadCandidate& candidate) {
        return wanted.empty() || candidate.name == wanted ||
               (!wantedPath.empty() && withoutLinks(candidate.path) == wantedPath);
    };
    // "input9" is older than "input10".
    const auto rank = [&](const TouchpadCandidate& candidate) {
        return std::tuple(!candidate.isBuiltIn, candidate.inputName != currentInputName, candidate.inputName.size(),
                          candidate.inputName);
    };
    const TouchpadCandidate* best = nullptr;
    for (const TouchpadCandidate& candidate : candidates)
        if (isWanted(candidate) && (!best || rank(candidate) < rank(*best)))
            best = &candidate;
    return best;
}

std::string noTouchpadMessage(const std::string& wanted) {
    if (wanted.empty())
        return translated("No built-in trackpad was found.");
    return wanted.starts_with('/') ? translated("There is no trackpad at %1.", {wanted})
                                   : translated("No trackpad named \"%1\" was found.", {wanted});
}

}  // namespace kinesta
