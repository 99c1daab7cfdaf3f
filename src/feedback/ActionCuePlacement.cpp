#include "feedback/ActionCuePlacement.h"

#include <algorithm>

#include "feedback/ActionCuePanel.h"

namespace kinesta {

std::optional<Screen> ActionCuePlacement::screen(const Screens& screens) {
    if (const auto pointer = screens.pointerLocation()) {
        const auto all = screens.screens();
        const auto found = std::ranges::find_if(all, [&](const Screen& each) { return each.frame.contains(*pointer); });
        if (found != all.end())
            return *found;
    }
    return screens.mainScreen();
}

Point ActionCuePlacement::origin(ActionCuePosition position, const Rectangle& visibleFrame) {
    const double right = visibleFrame.maxX() - margin - ActionCuePanel::width;
    switch (position) {
        case ActionCuePosition::center:
            return {visibleFrame.midX() - ActionCuePanel::width / 2, visibleFrame.midY() - ActionCuePanel::height / 2};
        case ActionCuePosition::topRight:
            return {right, visibleFrame.maxY() - margin - ActionCuePanel::height};
        case ActionCuePosition::bottomRight:
            return {right, visibleFrame.y + margin};
    }
    return {};
}

}  // namespace kinesta
