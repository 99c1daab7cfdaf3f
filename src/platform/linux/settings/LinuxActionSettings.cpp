#include "platform/linux/settings/LinuxActionSettings.h"

#include "support/Translation.h"

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

std::vector<PlatformChoice> LinuxActionSettings::choices() {
    const std::string command = translated("The key that ⌘ means in shortcuts and presets.");
    return {
        {kCommandKey,
         translated("⌘ stands for"),
         {{"control", translated("Ctrl"), command}, {"super", translated("Super"), command}}},
        {kInputRoute,
         translated("Keys go out through"),
         {{"automatic", translated("What suits the session"),
           translated("The X server in an X11 session, a virtual keyboard in all others.")},
          {"x11", translated("The X server"),
           translated("In a Wayland session, only programs that use XWayland receive the keys.")},
          {"uinput", translated("A virtual keyboard"),
           translated("Reaches every program. Modifier keys that you hold yourself count as part of a shortcut.")}}}};
}

}  // namespace kinesta
