#include "platform/linux/keyboard/UinputInputPoster.h"

#include <linux/input-event-codes.h>

#include <utility>

namespace kinesta {
namespace {

constexpr std::uint16_t kLastCode = 255;  // of the virtual device

}  // namespace

UinputInputPoster::UinputInputPoster(Log log) : m_log(std::move(log)) { isAvailable(); }

bool UinputInputPoster::isAvailable() {
    if (m_device)
        return true;
    // Try again at each call: the person may just have received permission.
    auto device = UinputDevice::create();
    if (device)
        m_device = std::move(*device);
    else
        tell(device.error().message);
    return m_device != nullptr;
}

std::optional<ModifierSituation> UinputInputPoster::modifiersFor(std::uint16_t code) {
    if (code < KEY_ESC || code > kLastCode || !isAvailable())
        return std::nullopt;
    return ModifierSituation{{{KEY_LEFTSHIFT, kShiftModifier},
                              {KEY_LEFTCTRL, kControlModifier},
                              {KEY_LEFTALT, kAltModifier},
                              {KEY_LEFTMETA, kSuperModifier}},
                             {}};
}

std::optional<DesktopLocation> UinputInputPoster::pointerLocation() {
    // Any location will do: the device clicks where the pointer is.
    return isAvailable() ? std::optional(DesktopLocation{}) : std::nullopt;
}

bool UinputInputPoster::post(std::span<const InputTransition> transitions) {
    if (!isAvailable())
        return false;
    for (const InputTransition& step : transitions) {
        m_device->post(step.code, step.transition == KeyTransition::down);
        // One report for each: changes in one report count as simultaneous, so a key might come before its modifier.
        if (const Outcome sent = m_device->sync(); !sent) {
            tell(sent.error().message);
            m_device.reset();
            return false;
        }
    }
    return true;
}

void UinputInputPoster::tell(const std::string& reason) {
    if (std::exchange(m_lastReason, reason) != reason)
        m_log(reason);
}

}  // namespace kinesta
