#include "platform/linux/touchpad/TouchpadListing.h"

#include <utility>

#include "platform/linux/touchpad/DeviceAccess.h"
#include "platform/linux/touchpad/EvdevDevice.h"
#include "platform/linux/touchpad/TouchpadScanner.h"
#include "platform/linux/touchpad/TouchpadSwitch.h"

namespace kinesta {

std::vector<ListedTouchpad> listTouchpads(const std::string& wanted) {
    const TouchpadScanner scanner;
    const std::vector<TouchpadCandidate> candidates = scanner.scan();
    const TouchpadCandidate* chosen = chooseTouchpad(candidates, wanted, {});
    const TouchpadSwitch::Desktop desktop = TouchpadSwitch::Desktop::current();
    TouchpadSwitch touchpadSwitch(desktop);
    std::vector<ListedTouchpad> list;
    for (const TouchpadCandidate& candidate : candidates) {
        ListedTouchpad& listed = list.emplace_back();
        listed.candidate = candidate;
        listed.isChosen = &candidate == chosen;
        listed.mayBeOff = desktop.isSilent;
        listed.problem = touchpadSwitch.whyOff(candidate.path, scanner);
        if (!listed.problem.empty())
            continue;
        const auto device = EvdevDevice::open(candidate);
        if (device) {
            listed.touchpad = device.value()->touchpad();
            listed.canTellPressure = device.value()->canTellPressure();
            listed.fingers = device.value()->fingers();
        } else {
            std::string problem = device.error().message;
            if (const std::string advice = touchpadAccessAdvice(); problem.ends_with(advice)) {
                listed.command = touchpadAccessCommand();
                problem.replace(problem.size() - advice.size(), advice.size(), ".");
            }
            listed.problem = std::move(problem);
        }
    }
    return list;
}

}  // namespace kinesta
