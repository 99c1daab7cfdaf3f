#include "cli/commands/Commands.h"

#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "support/Json.h"

namespace kinesta {
namespace {

Json range(const std::array<int, 2>& axis) { return Json::array({axis[0], axis[1]}); }

Json asJson(const ConnectedTrackpad& trackpad) {
    Json object{{"name", trackpad.name},
                {"path", trackpad.path},
                {"builtIn", trackpad.isBuiltIn},
                {"chosen", trackpad.isChosen},
                {"readable", trackpad.problem.empty()},
                {"problem", trackpad.problem.empty() ? Json(nullptr) : Json(trackpad.problem)},
                {"command", trackpad.command.empty() ? Json(nullptr) : Json(trackpad.command)}};
    if (trackpad.axes) {
        object.set("x", range(trackpad.axes->x));
        object.set("y", range(trackpad.axes->y));
        object.set("slots", trackpad.axes->slotCount);
        object.set("fingers", trackpad.fingers > 0 ? Json(trackpad.fingers) : Json(nullptr));
        object.set("pressure", trackpad.canTellPressure);
    }
    return object;
}

void printForPeople(const Console& console, const ConnectedTrackpads& trackpads) {
    if (trackpads.all.empty()) {
        console.out << "No trackpad was found.\n";
        return;
    }
    TextTable table({"", "TOUCHPAD", "DEVICE", "FINGERS", "FORCE CLICK"});
    for (const ConnectedTrackpad& trackpad : trackpads.all)
        table.add({trackpad.isChosen ? "→" : "", trackpad.name, trackpad.path,
                   trackpad.fingers > 0 ? std::to_string(trackpad.fingers) : "?",
                   !trackpad.axes             ? "?"
                   : trackpad.canTellPressure ? "yes"
                                              : "impossible: it cannot tell pressure"});
    table.print(console);
    if (trackpads.chosen() == nullptr)
        console.out << '\n' << console.warning(printable(trackpads.whenNoneIsChosen.why)) << '\n';
    for (const ConnectedTrackpad& trackpad : trackpads.all)
        if (!trackpad.problem.empty())
            console.out << '\n'
                        << console.warning(
                               printable(trackpad.problem + (trackpad.command.empty() ? "" : " To allow it, run:")))
                        << '\n'
                        << (trackpad.command.empty() ? "" : trackpad.command + "\n");
}

}  // namespace

ExitStatus listDevices(const Console& console, Desktop& desktop, OutputForm form) {
    const StoredSettings settings(console, desktop);
    const ConnectedTrackpads trackpads = desktop.connectedTrackpads();
    if (form == OutputForm::forPeople) {
        printForPeople(console, trackpads);
        return settings.status();
    }
    Json array = Json::array();
    for (const ConnectedTrackpad& trackpad : trackpads.all)
        array.push_back(asJson(trackpad));
    console.out << array.text(2) << '\n';
    return settings.status();
}

}  // namespace kinesta
