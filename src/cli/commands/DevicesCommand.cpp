#include "cli/commands/DevicesCommand.h"

#include <algorithm>

#include "cli/LiveRecognition.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "platform/linux/touchpad/TouchpadListing.h"
#include "support/Json.h"

namespace kinesta {
namespace {

Json range(const EvdevAxisRange& axis) { return Json::array({axis.minimum, axis.maximum}); }

Json asJson(const ListedTouchpad& listed) {
    Json object{{"name", listed.candidate.name},
                {"path", listed.candidate.path},
                {"builtIn", listed.candidate.isBuiltIn},
                {"chosen", listed.isChosen},
                {"readable", listed.problem.empty()},
                {"problem", listed.problem.empty() ? Json(nullptr) : Json(listed.problem)}};
    if (listed.touchpad) {
        object.set("x", range(listed.touchpad->x));
        object.set("y", range(listed.touchpad->y));
        object.set("slots", listed.touchpad->slotCount);
        object.set("fingers", listed.fingers > 0 ? Json(listed.fingers) : Json(nullptr));
        object.set("pressure", listed.canTellPressure);
    }
    return object;
}

}  // namespace

ExitStatus listDevices(const Console& console, const std::filesystem::path& defaults, OutputForm form) {
    StoredSettings settings(console, defaults);
    const std::string wanted = settings.defaults().string(kTouchpadSettingKey).value_or("");
    const auto touchpads = listTouchpads(wanted);
    if (form == OutputForm::json) {
        Json array = Json::array();
        for (const ListedTouchpad& listed : touchpads)
            array.push_back(asJson(listed));
        console.out << array.text(2) << '\n';
        return settings.status();
    }
    if (touchpads.empty()) {
        console.out << "No trackpad was found.\n";
        return settings.status();
    }
    TextTable table({"", "TOUCHPAD", "DEVICE", "FINGERS", "FORCE CLICK"});
    for (const ListedTouchpad& listed : touchpads)
        table.add({listed.isChosen ? "→" : "", listed.candidate.name, listed.candidate.path,
                   listed.fingers > 0 ? std::to_string(listed.fingers) : "?",
                   !listed.touchpad         ? "?"
                   : listed.canTellPressure ? "yes"
                                            : "impossible: it cannot tell pressure"});
    table.print(console);
    if (!wanted.empty() && std::ranges::none_of(touchpads, [](const auto& listed) { return listed.isChosen; }))
        console.out << '\n' << console.warning(printable(noTouchpadMessage(wanted))) << '\n';
    for (const ListedTouchpad& listed : touchpads)
        if (!listed.problem.empty())
            console.out << '\n' << console.warning(printable(listed.problem)) << '\n';
    return settings.status();
}

}  // namespace kinesta
