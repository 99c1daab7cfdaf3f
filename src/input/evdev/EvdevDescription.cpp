#include "input/evdev/EvdevDescription.h"

#include <algorithm>

#include "input/evdev/EvdevCodes.h"

namespace kinesta {

void EvdevDescription::setAxis(std::int64_t code, EvdevAxisRange range) {
    switch (code) {
        case evdev::kAbsX:
            m_x = range;
            break;
        case evdev::kAbsY:
            m_y = range;
            break;
        case evdev::kAbsMtPositionX:
            m_multitouchX = range;
            break;
        case evdev::kAbsMtPositionY:
            m_multitouchY = range;
            break;
        case evdev::kAbsMtSlot:
            m_slot = range;
            break;
        default:
            break;
    }
}

void EvdevDescription::addKey(std::int64_t code) {
    m_hasKeys = true;
    if (code == evdev::kBtnToolFinger || code == evdev::kBtnTouch)
        m_hasTouchKey = true;
    else if (code == evdev::kBtnToolPen)
        m_hasPenKey = true;
}

void EvdevDescription::addProperty(std::int64_t property) {
    if (property == evdev::kPropertyDirect)
        m_isDirect = true;
}

bool EvdevDescription::isTouchpad() const {
    return hasRanges() && !m_isDirect && !m_hasPenKey && (m_hasTouchKey || !m_hasKeys);
}

EvdevTouchpad EvdevDescription::touchpad() const {
    EvdevTouchpad touchpad{.name = m_name,
                           .x = hasMultitouch() ? *m_multitouchX : m_x.value_or(EvdevAxisRange{}),
                           .y = hasMultitouch() ? *m_multitouchY : m_y.value_or(EvdevAxisRange{})};
    if (m_slot)
        touchpad.slotCount = std::clamp(m_slot->maximum, -1, EvdevFrameAssembler::kMaximumSlots - 1) + 1;
    return touchpad;
}

}  // namespace kinesta
