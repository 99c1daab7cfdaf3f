#include "platform/linux/touchpad/EvdevDevice.h"

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <linux/input.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <ctime>
#include <utility>

#include "input/evdev/EvdevCodes.h"
#include "platform/linux/touchpad/DeviceAccess.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

// Since Linux 6.18; the headers may be older.
constexpr unsigned kPropertyPressurePad = 0x07;

Error openingError(const TouchpadCandidate& candidate, int error) {
    if (error == EACCES || error == EPERM)
        return {translated("The trackpad \"%1\" (%2) may not be read", {candidate.name, candidate.path}) +
                touchpadAccessAdvice()};
    return {translated("The trackpad \"%1\" (%2) cannot be read: %3.",
                       {candidate.name, candidate.path, std::strerror(error)})};
}

EvdevAxisRange range(const libevdev* device, unsigned multitouchAxis, unsigned plainAxis) {
    const unsigned axis = libevdev_has_event_code(device, EV_ABS, multitouchAxis) ? multitouchAxis : plainAxis;
    return {libevdev_get_abs_minimum(device, axis), libevdev_get_abs_maximum(device, axis)};
}

/// Pressure without a unit is mostly the size of the contact, so a force threshold makes no sense.
std::optional<EvdevAxisRange> forceRange(const libevdev* device) {
    const input_absinfo* pressure = libevdev_get_abs_info(device, ABS_MT_PRESSURE);
    if (!pressure || pressure->maximum <= pressure->minimum ||
        (pressure->resolution <= 0 && !libevdev_has_property(device, kPropertyPressurePad)))
        return std::nullopt;
    return EvdevAxisRange{pressure->minimum, pressure->maximum};
}

Seconds timeOf(const input_event& event) {
    return static_cast<Seconds>(event.input_event_sec) + static_cast<Seconds>(event.input_event_usec) * 1e-6;
}

Seconds now() { return std::chrono::duration<Seconds>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

}  // namespace

void EvdevDevice::LibevdevFree::operator()(libevdev* device) const { libevdev_free(device); }

Result<std::unique_ptr<EvdevDevice>> EvdevDevice::open(const TouchpadCandidate& candidate,
                                                       PressureStageTracker::Limits limits) {
    FileDescriptor descriptor(::open(candidate.path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor)
        return openingError(candidate, errno);
    libevdev* made = nullptr;
    const int failure = libevdev_new_from_fd(descriptor.number(), &made);
    std::unique_ptr<libevdev, LibevdevFree> device(made);
    if (failure < 0)
        return openingError(candidate, -failure);
    if (const int clockFailure = libevdev_set_clock_id(device.get(), CLOCK_MONOTONIC); clockFailure < 0)
        return openingError(candidate, -clockFailure);
    EvdevTouchpad touchpad{.name = candidate.name,
                           .x = range(device.get(), ABS_MT_POSITION_X, ABS_X),
                           .y = range(device.get(), ABS_MT_POSITION_Y, ABS_Y),
                           .slotCount = std::max(libevdev_get_num_slots(device.get()), 0)};
    return std::unique_ptr<EvdevDevice>(
        new EvdevDevice(std::move(descriptor), std::move(device), std::move(touchpad), limits));
}

EvdevDevice::EvdevDevice(FileDescriptor descriptor, std::unique_ptr<libevdev, LibevdevFree> device,
                         EvdevTouchpad touchpad, PressureStageTracker::Limits limits)
    : m_descriptor(std::move(descriptor)),
      m_device(std::move(device)),
      m_touchpad(std::move(touchpad)),
      m_pressureRange(forceRange(m_device.get())),
      m_assembler(m_touchpad),
      m_pressureStage(limits),
      m_noting([this](const PadEvent& event) {
          if (const auto* frame = std::get_if<PadFrame>(&event.content))
              m_hasFingers = !frame->samples.empty();
          (*m_sink)(event);
      }) {}

EvdevDevice::~EvdevDevice() = default;

double EvdevDevice::proportions() const {
    const auto length = [this](unsigned axis) {
        const input_absinfo* range = libevdev_get_abs_info(m_device.get(), axis);
        return range && range->resolution > 0
                   ? (range->maximum - static_cast<double>(range->minimum)) / range->resolution
                   : 0;
    };
    const double height = length(ABS_Y);
    return height > 0 ? length(ABS_X) / height : 0;
}

int EvdevDevice::fingers() const {
    // A report without slots can list any number of contacts.
    if (m_touchpad.slotCount == 0 && libevdev_has_event_code(m_device.get(), EV_ABS, ABS_MT_POSITION_X))
        return 0;
    int fingers = std::max(m_touchpad.slotCount, 1);
    constexpr std::array kKeys{BTN_TOOL_DOUBLETAP, BTN_TOOL_TRIPLETAP, BTN_TOOL_QUADTAP, BTN_TOOL_QUINTTAP};
    for (std::size_t i = 0; i < kKeys.size(); ++i)
        if (libevdev_has_event_code(m_device.get(), EV_KEY, static_cast<unsigned>(kKeys[i])))
            fingers = std::max(fingers, static_cast<int>(i) + 2);
    return fingers;
}

void EvdevDevice::tellPresentState(const Sink& sink) {
    const Seconds time = now();
    for (int slot = 0; slot < m_touchpad.slotCount; ++slot) {
        const auto slotIndex = static_cast<unsigned>(slot);
        process(time, EV_ABS, ABS_MT_SLOT, slot, sink);
        // Empty slots too: the kernel does not repeat a coordinate that is the same for a slot's next finger as for its
        // last.
        for (const unsigned axis : {evdev::kAbsMtPositionX, evdev::kAbsMtPositionY, evdev::kAbsMtTrackingId})
            process(time, EV_ABS, axis, libevdev_get_slot_value(m_device.get(), slotIndex, axis), sink);
    }
    if (m_touchpad.slotCount > 0)
        process(time, EV_ABS, ABS_MT_SLOT, libevdev_get_current_slot(m_device.get()), sink);
    for (const unsigned axis : {evdev::kAbsX, evdev::kAbsY})
        process(time, EV_ABS, axis, libevdev_get_event_value(m_device.get(), EV_ABS, axis), sink);
    for (const unsigned key : {evdev::kBtnTouch, evdev::kBtnToolFinger, evdev::kBtnToolDoubleTap,
                               evdev::kBtnToolTripleTap, evdev::kBtnToolQuadTap, evdev::kBtnToolQuintTap})
        process(time, EV_KEY, key, libevdev_get_event_value(m_device.get(), EV_KEY, key), sink);
    process(time, EV_SYN, SYN_REPORT, 0, sink);
}

EvdevDevice::ReadOutcome EvdevDevice::read(const Sink& sink) {
    if (std::exchange(m_isFirstRead, false))
        tellPresentState(sink);
    for (;;) {
        input_event event{};
        const int status = libevdev_next_event(m_device.get(), LIBEVDEV_READ_FLAG_NORMAL, &event);
        if (status == LIBEVDEV_READ_STATUS_SUCCESS)
            process(timeOf(event), event.type, event.code, event.value, sink);
        else if (status == LIBEVDEV_READ_STATUS_SYNC)
            resynchronize(event, sink);
        else if (status == -EAGAIN)
            return ReadOutcome::drained;
        else if (status != -EINTR)
            return ReadOutcome::gone;
    }
}

// Drops the report that the loss cut short. The difference to the real state replaces it, with the time at which that
// state was read.
void EvdevDevice::resynchronize(const input_event& dropped, const Sink& sink) {
    process(timeOf(dropped), EV_SYN, SYN_DROPPED, 0, sink);
    process(timeOf(dropped), EV_SYN, SYN_REPORT, 0, sink);
    const Seconds time = now();
    input_event event{};
    while (libevdev_next_event(m_device.get(), LIBEVDEV_READ_FLAG_SYNC, &event) == LIBEVDEV_READ_STATUS_SYNC)
        process(time, event.type, event.code, event.value, sink);
}

void EvdevDevice::process(Seconds time, unsigned type, unsigned code, int value, const Sink& sink) {
    m_lastTime = std::max(m_lastTime, time);
    m_sink = &sink;
    m_assembler.process({.time = m_lastTime,
                         .type = static_cast<std::uint16_t>(type),
                         .code = static_cast<std::uint16_t>(code),
                         .value = value},
                        m_noting);
    if (m_pressureRange && type == EV_SYN && code == SYN_REPORT)
        tellPressureStage(sink);
}

void EvdevDevice::tellPressureStage(const Sink& sink) {
    const bool isButtonDown = libevdev_get_event_value(m_device.get(), EV_KEY, BTN_LEFT) != 0 ||
                              libevdev_get_event_value(m_device.get(), EV_KEY, BTN_RIGHT) != 0;
    if (const auto stage = m_pressureStage.process(isButtonDown, strongestPressure()))
        sink({m_lastTime, PadPressure{*stage}});
}

double EvdevDevice::strongestPressure() const {
    int strongest = m_pressureRange->minimum;
    for (int slot = 0; slot < m_touchpad.slotCount; ++slot) {
        const auto slotIndex = static_cast<unsigned>(slot);
        if (libevdev_get_slot_value(m_device.get(), slotIndex, ABS_MT_TRACKING_ID) >= 0)
            strongest = std::max(strongest, libevdev_get_slot_value(m_device.get(), slotIndex, ABS_MT_PRESSURE));
    }
    return (static_cast<double>(strongest) - m_pressureRange->minimum) /
           (static_cast<double>(m_pressureRange->maximum) - m_pressureRange->minimum);
}

void EvdevDevice::liftAll(const Sink& sink) {
    if (!m_hasFingers)
        return;
    m_hasFingers = false;
    m_lastTime = std::max(m_lastTime, now());
    sink({m_lastTime, PadFrame{}});
}

}  // namespace kinesta
