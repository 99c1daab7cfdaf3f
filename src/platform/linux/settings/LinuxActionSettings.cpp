#include "platform/linux/settings/LinuxActionSettings.h"

namespace kinesta {

LinuxActionSettings LinuxActionSettings::read(const UserDefaults& defaults) {
    LinuxActionSettings settings;
    if (defaults.string(kCommandKey) == "super")
        settings.commandKey = CommandKey::super;
    const auto route = defaults.string(kInputRoute);
    if (route == "x11")
        settings.inputRoute = InputRoute::xServer;
    else if (route == "uinput")
        settings.inputRoute = InputRoute::uinput;
    return settings;
}

}  // namespace kinesta
