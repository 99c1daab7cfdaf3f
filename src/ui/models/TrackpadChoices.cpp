#include "ui/models/TrackpadChoices.h"

#include <algorithm>

#include "support/Translation.h"

namespace kinesta {
namespace {

std::string titleOf(const ConnectedTrackpad& trackpad) {
    return trackpad.isBuiltIn ? translated("%1 (built in)", {trackpad.name}) : trackpad.name;
}

}  // namespace

TrackpadChoices TrackpadChoices::of(const ConnectedTrackpads& connected, const std::string& wanted) {
    TrackpadChoices choices;
    choices.all.push_back({{}, translated("Automatic"), {}});
    for (const ConnectedTrackpad& trackpad : connected.all) {
        // The number in the path changes when devices are connected in another order, so it is only for twins.
        const bool hasTwin = std::ranges::count(connected.all, trackpad.name, &ConnectedTrackpad::name) > 1;
        Choice choice{hasTwin ? trackpad.path : trackpad.name, titleOf(trackpad), trackpad.problem};
        if (hasTwin)
            choice.title += " · " + trackpad.path;
        if (!wanted.empty() && choices.chosen == 0 && (wanted == trackpad.path || wanted == trackpad.name))
            choices.chosen = choices.all.size();
        choices.all.push_back(std::move(choice));
    }
    const ConnectedTrackpad* read = connected.chosen();
    if (!wanted.empty() && choices.chosen == 0) {
        choices.chosen = choices.all.size();
        choices.all.push_back({wanted, translated("%1 (not connected)", {wanted}), connected.whenNoneIsChosen.why});
    } else if (wanted.empty() && read != nullptr) {
        choices.all.front().problem = read->problem;
    }
    choices.detail = choices.all[choices.chosen].problem;
    if (choices.detail.empty() && choices.chosen == 0 && read != nullptr)
        choices.detail = translated("“%1” is read now.", {read->name});
    return choices;
}

}  // namespace kinesta
