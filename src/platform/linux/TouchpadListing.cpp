#include "platform/linux/TouchpadListing.h"

#include "platform/linux/EvdevDevice.h"
#include "platform/linux/TouchpadScanner.h"
#include "platform/linux/TouchpadSwitch.h"

namespace kinesta {

std::vector<ListedTouchpad> listTouchpads(const std::string& wanted) {
    const std::vector<TouchpadCandidate> candidates = TouchpadScanner().scan();
    const TouchpadCandidate* chosen = chooseTouchpad(candidates, wanted, {});
    TouchpadSwitch touchpadSwitch;
    std::vector<ListedTouchpad> list;
    for (const TouchpadCandidate& candidate : candidates) {
        ListedTouchpad& listed = list.emplace_back();
        listed.candidate = candidate;
        listed.isChosen = &candidate == chosen;
        if (touchpadSwitch.mode(candidate.path) == SendEventsMode::disabled) {
            listed.problem = "The trackpad is switched off in the desktop's settings.";
            continue;
        }
        const auto device = EvdevDevice::open(candidate);
        if (device) {
            listed.touchpad = device.value()->touchpad();
            listed.canTellPressure = device.value()->canTellPressure();
        } else {
            listed.problem = device.error().message;
        }
    }
    return list;
}

}  // namespace kinesta
