#include "cli/CommandRunner.h"
#include "platform/linux/LinuxDesktop.h"

namespace kinesta::testing {

std::unique_ptr<Desktop> desktopIn(const std::filesystem::path& folder, MainLoop& mainLoop) {
    return std::make_unique<LinuxDesktop>(
        mainLoop, LinuxDesktop::Places{.settings = folder / "defaults.json",
                                       .examples = std::filesystem::path(KINESTA_SOURCE_DIR) / "examples"});
}

}  // namespace kinesta::testing
