#include "platform/linux/windows/EwmhSnapshot.h"

#include <algorithm>

namespace kinesta {

const EwmhWindow* EwmhSnapshot::window(EwmhWindowId id) const {
    const auto found = std::find_if(windows.begin(), windows.end(), [id](const auto& each) { return each.id == id; });
    return found == windows.end() ? nullptr : &*found;
}

const EwmhMonitor& EwmhSnapshot::monitorOf(const WindowRectangle& rectangle) const {
    const auto shown = [&rectangle](const EwmhMonitor& monitor) {
        const auto part = rectangle.intersection(monitor.bounds);
        return static_cast<long>(part.width) * part.height;
    };
    return *std::max_element(monitors.begin(), monitors.end(),
                             [&shown](const auto& a, const auto& b) { return shown(a) < shown(b); });
}

std::vector<EwmhWindowId> EwmhSnapshot::modalDialogsOf(const EwmhWindow& owner) const {
    const auto belongsToOwner = [&](const EwmhWindow& dialog) {
        const EwmhWindow* link = &dialog;
        // A chain that is longer than the number of windows is a cycle.
        for (std::size_t i = 0; i < windows.size() && link != nullptr; ++i) {
            if (link->transientFor == owner.id)
                return true;
            // A dialog belongs to all windows of its group if it has no owner, or if its owner is the root window or
            // the group leader (as Qt sets it).
            const bool isOfGroup =
                link->transientFor == 0 || link->transientFor == root || link->transientFor == link->group;
            if (isOfGroup)
                return link->group != 0 && link->group == owner.group;
            link = window(link->transientFor);
        }
        return false;
    };
    std::vector<EwmhWindowId> dialogs;
    for (const auto& each : windows)
        if (each.isModal && each.id != owner.id && belongsToOwner(each))
            dialogs.push_back(each.id);
    return dialogs;
}

}  // namespace kinesta
