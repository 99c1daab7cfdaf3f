#include "platform/macos/workspace/MacHomeFolders.h"

#include "platform/macos/foundation/NsText.h"

namespace kinesta {

std::optional<std::string> MacHomeFolders::homeFolder(const std::string& userName) const {
    const std::string folder = textOf(nsText("~" + userName).stringByExpandingTildeInPath);
    // Unchanged if there is no such user.
    return folder.starts_with('/') ? std::optional(folder) : std::nullopt;
}

}  // namespace kinesta
