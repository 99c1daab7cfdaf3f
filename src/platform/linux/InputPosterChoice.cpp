#include "platform/linux/InputPosterChoice.h"

#include <utility>

#include "platform/linux/UinputInputPoster.h"
#include "platform/linux/X11InputPoster.h"

namespace kinesta {

std::unique_ptr<InputPoster> makeInputPoster(LinuxActionSettings::InputRoute route, X11Connection& connection,
                                             X11Keyboard& keyboard, std::function<void(const std::string&)> log) {
    if (route == LinuxActionSettings::InputRoute::xServer)
        return std::make_unique<X11InputPoster>(connection, keyboard);
    return std::make_unique<UinputInputPoster>(std::move(log));
}

}  // namespace kinesta
