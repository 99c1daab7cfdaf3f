#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/InputPoster.h"
#include "platform/linux/LinuxActionSettings.h"
#include "platform/linux/X11Keyboard.h"

namespace kinesta {

/// Makes the poster for a route, which is not automatic. The connection and its keyboard must outlive it. `log` is told
/// why nothing could be posted, where the poster knows.
std::unique_ptr<InputPoster> makeInputPoster(LinuxActionSettings::InputRoute route, X11Connection& connection,
                                             X11Keyboard& keyboard, std::function<void(const std::string&)> log);

}  // namespace kinesta
