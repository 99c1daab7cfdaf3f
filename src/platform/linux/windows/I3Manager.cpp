#include "platform/linux/windows/I3Manager.h"

#include "platform/linux/windows/I3Layout.h"
#include "platform/linux/windows/I3Socket.h"

namespace kinesta {

bool I3Manager::locate(std::span<EwmhWindow> windows, Deadline deadline) const {
    const auto tree = askI3(m_socketPath, I3Question::tree, "", deadline);
    const auto places = tree ? i3Places(*tree) : std::nullopt;
    if (!places)
        return false;
    for (EwmhWindow& window : windows) {
        const auto found = places->find(window.id);
        if (found == places->end())
            continue;
        const I3Place& place = found->second;
        window.frame = place.frame;
        window.frameInsets = {place.client.x - place.frame.x, place.frame.right() - place.client.right(),
                              place.client.y - place.frame.y, place.frame.bottom() - place.client.bottom()};
        window.shadow = {};
        window.isInLayout = !place.floats;
        // Sway reports windows in its layout as maximized.
        window.isMaximizedHorizontally = window.isMaximizedVertically = false;
    }
    return true;
}

std::vector<WindowRectangle> I3Manager::workAreas(Deadline deadline) const {
    return i3WorkAreas(askI3(m_socketPath, I3Question::workspaces, "", deadline).value_or(""));
}

bool I3Manager::place(EwmhWindowId window, const WindowRectangle& frame, Deadline deadline) const {
    const auto pixels = [](int a, int b) { return std::to_string(a) + " px " + std::to_string(b) + " px"; };
    return command(window,
                   "floating enable, resize set " + pixels(frame.width, frame.height) + ", move absolute position " +
                       pixels(frame.x, frame.y),
                   deadline);
}

bool I3Manager::returnToLayout(EwmhWindowId window, Deadline deadline) const {
    return command(window, "floating disable", deadline);
}

bool I3Manager::close(EwmhWindowId window, Deadline deadline) const { return command(window, "kill", deadline); }

bool I3Manager::command(EwmhWindowId window, const std::string& words, Deadline deadline) const {
    const auto results =
        askI3(m_socketPath, I3Question::command, "[id=" + std::to_string(window) + "] " + words, deadline);
    return results && i3Succeeded(*results);
}

}  // namespace kinesta
