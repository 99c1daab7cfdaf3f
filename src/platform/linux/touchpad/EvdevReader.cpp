#include "platform/linux/touchpad/EvdevReader.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace kinesta {
namespace {

EvdevReader::State unavailable(std::string message) {
    EvdevReader::State state;
    state.status = TrackpadContactProviderStatus::unavailable(std::move(message));
    return state;
}

}  // namespace

EvdevReader::EvdevReader(Settings settings, EvdevDevice::Sink sink, std::function<void(const State&)> onChange)
    : m_settings(std::move(settings)), m_sink(std::move(sink)), m_onChange(std::move(onChange)) {}

const EvdevReader::State& EvdevReader::open() {
    m_state = look();
    return m_state;
}

void EvdevReader::run(int ending) {
    for (;;) {
        int timeout = -1;
        if (m_device && m_device->read(m_sink) == EvdevDevice::ReadOutcome::gone) {
            leaveDevice();
            lookAgain();
            timeout = 0;  // the next read reports the fingers on a newly opened device
        }
        std::array<pollfd, 4> sources{
            pollfd{.fd = ending, .events = POLLIN, .revents = 0},
            pollfd{.fd = m_watch.fileDescriptor(), .events = POLLIN, .revents = 0},
            pollfd{.fd = m_switch.fileDescriptor(), .events = POLLIN, .revents = 0},
            pollfd{.fd = m_device ? m_device->fileDescriptor() : -1, .events = POLLIN, .revents = 0},
        };
        if (poll(sources.data(), sources.size(), timeout) < 0)
            continue;
        if (sources[0].revents != 0)
            return;
        const bool isDeviceChange = sources[1].revents != 0 && m_watch.takeChanges();
        const bool isSwitched = sources[2].revents != 0 && m_switch.takeChanges();
        if (isDeviceChange || isSwitched)
            lookAgain();
    }
}

void EvdevReader::lookAgain() {
    State state = look();
    if (state == m_state)
        return;
    m_state = std::move(state);
    m_onChange(m_state);
}

EvdevReader::State EvdevReader::look() {
    const std::vector<TouchpadCandidate> candidates = m_scanner.scan();
    const TouchpadCandidate* chosen = chooseTouchpad(candidates, m_settings.device, m_inputName);
    if (!chosen) {
        leaveDevice();
        return unavailable(noTouchpadMessage(m_settings.device));
    }
    if (std::string why = m_switch.whyOff(chosen->path, m_scanner); !why.empty()) {
        leaveDevice();
        return unavailable(std::move(why));
    }
    // An open device stays readable after the permission is withdrawn, but then another user has the pad.
    if (m_device && (chosen->inputName != m_inputName || access(chosen->path.c_str(), R_OK) != 0))
        leaveDevice();
    if (!m_device) {
        auto device = EvdevDevice::open(*chosen, m_settings.pressure);
        if (!device)
            return unavailable(device.error().message);
        m_device = std::move(*device);
        m_inputName = chosen->inputName;
    }
    return {.status = TrackpadContactProviderStatus::listening(),
            .path = chosen->path,
            .name = chosen->name,
            .canTellPressure = m_device->canTellPressure(),
            .proportions = m_device->proportions()};
}

void EvdevReader::liftAll() {
    if (m_device)
        m_device->liftAll(m_sink);
}

void EvdevReader::leaveDevice() {
    liftAll();
    m_device.reset();
    m_inputName.clear();
}

}  // namespace kinesta
