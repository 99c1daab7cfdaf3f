#include "platform/linux/LinuxTrackpad.h"

#include <utility>

#include "platform/linux/touchpad/TouchpadListing.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::string chosenIn(const UserDefaults& defaults) { return defaults.string(LinuxTrackpad::kSettingKey).value_or(""); }

std::array<int, 2> range(const EvdevAxisRange& axis) { return {axis.minimum, axis.maximum}; }

}  // namespace

LinuxTrackpad::LinuxTrackpad(MainThread& mainThread, const Clock& clock, const UserDefaults& defaults)
    : m_clock(clock),
      m_defaults(defaults),
      m_relay(mainThread, clock),
      m_provider(mainThread, {.device = chosenIn(defaults), .pressure = {}}) {
    m_provider.setPointerHandler([this](const PadEvent& event) { m_pointer.deliver(event); });
    m_provider.setEventHandler([this](const PadEvent& event) { m_relay.offer(event); });
}

LiveTrackpad::Identity LinuxTrackpad::identity() const {
    const auto& state = m_provider.state();
    return {state.name, state.path, state.canTellPressure, state.proportions};
}

void LinuxTrackpad::choose(const std::string& wanted) {
    m_provider.setDevice(wanted.empty() ? chosenIn(m_defaults) : wanted);
}

ConnectedTrackpads LinuxTrackpad::connected(const UserDefaults& defaults, const std::string& howToChoose) {
    const std::string wanted = chosenIn(defaults);
    ConnectedTrackpads trackpads;
    for (ListedTouchpad& listed : listTouchpads(wanted)) {
        ConnectedTrackpad& trackpad = trackpads.all.emplace_back();
        trackpad.name = std::move(listed.candidate.name);
        trackpad.path = std::move(listed.candidate.path);
        trackpad.isBuiltIn = listed.candidate.isBuiltIn;
        trackpad.isChosen = listed.isChosen;
        if (listed.touchpad)
            trackpad.axes = {range(listed.touchpad->x), range(listed.touchpad->y), listed.touchpad->slotCount};
        trackpad.canTellPressure = listed.canTellPressure;
        trackpad.mayBeOff = listed.mayBeOff;
        trackpad.fingers = listed.fingers;
        trackpad.problem = std::move(listed.problem);
        trackpad.command = std::move(listed.command);
    }
    if (trackpads.chosen() == nullptr)
        trackpads.whenNoneIsChosen = {
            noTouchpadMessage(wanted),
            trackpads.all.empty() ? translated("Connect one; recognition starts by itself.")
                                  : translated("Choose one of those that kinesta devices shows: %1", {howToChoose})};
    return trackpads;
}

}  // namespace kinesta
