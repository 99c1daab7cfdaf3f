#include "input/evdev/EvdevFrameAssembler.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "input/evdev/EvdevCodes.h"

namespace kinesta {
namespace {

constexpr Point kCentre{0.5, 0.5};
// Not -1, which marks an empty slot.
constexpr ContactId kFirstMissingId = -2;

double normalized(std::int32_t value, EvdevAxisRange range) {
    if (range.maximum <= range.minimum)
        return 0.5;
    const auto minimum = static_cast<double>(range.minimum);
    return std::clamp((static_cast<double>(value) - minimum) / (static_cast<double>(range.maximum) - minimum), 0.0,
                      1.0);
}

}  // namespace

EvdevFrameAssembler::EvdevFrameAssembler(EvdevTouchpad touchpad)
    : m_touchpad(std::move(touchpad)),
      m_protocol(m_touchpad.slotCount > 0 ? Protocol::slots : Protocol::singleTouch),
      m_slots(static_cast<std::size_t>(std::clamp(m_touchpad.slotCount, 0, kMaximumSlots))) {}

void EvdevFrameAssembler::process(const EvdevEvent& event, const Sink& sink) {
    if (event.type == evdev::kTypeSyn)
        takeSynchronization(event, sink);
    else if (m_isDropping)
        return;
    else if (event.type == evdev::kTypeKey)
        takeKey(event);
    else if (event.type == evdev::kTypeAbs)
        takeAxis(event);
}

void EvdevFrameAssembler::takeSynchronization(const EvdevEvent& event, const Sink& sink) {
    if (event.code == evdev::kSynDropped) {
        m_isDropping = true;
        m_matcher.discardReport();
        m_hasContactReport = false;
        m_saysLifted = false;
    } else if (event.code == evdev::kSynReport) {
        if (!std::exchange(m_isDropping, false))
            deliver(event.time, sink);
    } else if (event.code == evdev::kSynMtReport && !m_isDropping && m_protocol != Protocol::slots) {
        m_protocol = Protocol::contactReports;
        m_hasContactReport = true;
        m_matcher.finishContact();
    }
}

void EvdevFrameAssembler::takeKey(const EvdevEvent& event) {
    const bool isDown = event.value != 0;
    switch (event.code) {
        case evdev::kBtnLeft:
            setButton(m_isLeftDown, event.value);
            break;
        case evdev::kBtnRight:
            setButton(m_isRightDown, event.value);
            break;
        case evdev::kBtnTouch:
            if (isDown && !m_isTouched)
                m_singleId = m_singleId == std::numeric_limits<ContactId>::max() ? 1 : m_singleId + 1;
            m_isTouched = isDown;
            m_saysLifted = !isDown;
            break;
        case evdev::kBtnToolFinger:
            m_fingerKeys[0] = isDown;
            break;
        case evdev::kBtnToolDoubleTap:
            m_fingerKeys[1] = isDown;
            break;
        case evdev::kBtnToolTripleTap:
            m_fingerKeys[2] = isDown;
            break;
        case evdev::kBtnToolQuadTap:
            m_fingerKeys[3] = isDown;
            break;
        case evdev::kBtnToolQuintTap:
            m_fingerKeys[4] = isDown;
            break;
        default:
            break;
    }
}

// Ignores an event beyond the limit entirely, so that presses and releases of a button still alternate.
void EvdevFrameAssembler::setButton(bool& isDown, std::int32_t value) {
    const bool becomesDown = value != 0;
    if (becomesDown == isDown || m_buttonEvents.size() == kMaximumButtonEvents)
        return;
    isDown = becomesDown;
    m_buttonEvents.push_back(becomesDown ? PadButton::down : PadButton::up);
}

void EvdevFrameAssembler::takeAxis(const EvdevEvent& event) {
    if (event.code == evdev::kAbsX)
        m_x = event.value;
    else if (event.code == evdev::kAbsY)
        m_y = event.value;
    else if (event.code == evdev::kAbsPressure && event.value == 0)
        m_saysLifted = true;
    else if (m_protocol == Protocol::slots)
        takeSlotAxis(event);
    else if (event.code == evdev::kAbsMtPositionX)
        m_matcher.setX(event.value);
    else if (event.code == evdev::kAbsMtPositionY)
        m_matcher.setY(event.value);
    else if (event.code == evdev::kAbsMtTouchMajor)
        m_matcher.setTouchMajor(event.value);
    else if (event.code == evdev::kAbsMtTrackingId)
        m_matcher.setTrackingId(event.value);
}

void EvdevFrameAssembler::takeSlotAxis(const EvdevEvent& event) {
    if (event.code == evdev::kAbsMtSlot) {
        m_currentSlot = event.value;
        return;
    }
    if (m_currentSlot < 0 || static_cast<std::size_t>(m_currentSlot) >= m_slots.size())
        return;
    Slot& slot = m_slots[static_cast<std::size_t>(m_currentSlot)];
    if (event.code == evdev::kAbsMtPositionX)
        slot.x = event.value;
    else if (event.code == evdev::kAbsMtPositionY)
        slot.y = event.value;
    else if (event.code == evdev::kAbsMtTrackingId)
        setTrackingId(slot, event.value);
}

void EvdevFrameAssembler::setTrackingId(Slot& slot, std::int32_t trackingId) {
    if (trackingId == slot.trackingId)
        return;
    if (trackingId >= 0) {
        // An identifier belongs to one contact: in a new slot, it has left the old one.
        for (Slot& other : m_slots)
            if (other.trackingId == trackingId)
                other.trackingId = -1;
        slot.touchDown = ++m_touchDowns;
    }
    slot.trackingId = trackingId;
}

void EvdevFrameAssembler::deliver(Seconds time, const Sink& sink) {
    PadEvent event{time, PadFrame{}};
    TouchSamples& samples = std::get_if<PadFrame>(&event.content)->samples;
    switch (m_protocol) {
        case Protocol::slots:
            collectSlots(samples);
            break;
        case Protocol::contactReports:
            finishContactReports();
            collectContactReports(samples);
            break;
        case Protocol::singleTouch:
            collectSingleTouch(samples);
            break;
    }
    const bool hasFingers = !samples.empty();
    if (std::exchange(m_hadFingers, hasFingers) || hasFingers)
        sink(event);
    const auto buttonEvents = m_buttonEvents;
    m_buttonEvents.clear();
    for (const PadButton pointer : buttonEvents)
        sink({time, pointer});
}

// Every report lists all contacts. A report without any is the lift of the last finger (a driver may omit the empty
// contact if it sends BTN_TOUCH or ABS_PRESSURE) or that of a button alone.
void EvdevFrameAssembler::finishContactReports() {
    if (m_hasContactReport || m_saysLifted)
        m_matcher.finishReport();
    else
        m_matcher.discardReport();
    m_hasContactReport = false;
    m_saysLifted = false;
}

Point EvdevFrameAssembler::place(std::optional<std::int32_t> x, std::optional<std::int32_t> y, Point fallback) const {
    return {x ? normalized(*x, m_touchpad.x) : fallback.x, y ? 1.0 - normalized(*y, m_touchpad.y) : fallback.y};
}

void EvdevFrameAssembler::collectSlots(TouchSamples& samples) const {
    const Slot* first = nullptr;
    for (const Slot& slot : m_slots)
        if (slot.trackingId >= 0 && (!first || slot.touchDown < first->touchDown))
            first = &slot;
    if (!first)
        return;
    const Point firstPlace = place(first->x, first->y, kCentre);
    for (const Slot& slot : m_slots)
        if (slot.trackingId >= 0)
            samples.push_back({slot.trackingId, place(slot.x, slot.y, firstPlace)});
    addMissing(samples, firstPlace);
}

void EvdevFrameAssembler::collectContactReports(TouchSamples& samples) const {
    for (const EvdevContactMatcher::Contact& contact : m_matcher.contacts())
        if (!contact.isLifted)
            samples.push_back({contact.id, place(contact.x, contact.y, kCentre)});
}

void EvdevFrameAssembler::collectSingleTouch(TouchSamples& samples) const {
    if (!m_isTouched)
        return;
    const Point only = place(m_x, m_y, kCentre);
    samples.push_back({m_singleId, only});
    addMissing(samples, only);
}

void EvdevFrameAssembler::addMissing(TouchSamples& samples, Point first) const {
    std::size_t count = m_fingerKeys.size();
    while (count > 0 && !m_fingerKeys[count - 1])
        --count;
    for (ContactId id = kFirstMissingId; samples.size() < count; --id)
        samples.push_back({id, first});
}

}  // namespace kinesta
