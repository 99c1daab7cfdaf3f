#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "input/PadEvent.h"
#include "input/evdev/EvdevContactMatcher.h"

namespace kinesta {

/// One event of the kernel's input protocol, with the kernel's own numbers.
struct EvdevEvent {
    Seconds time = 0;
    std::uint16_t type = 0;
    std::uint16_t code = 0;
    std::int32_t value = 0;
};

struct EvdevAxisRange {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;

    friend bool operator==(const EvdevAxisRange&, const EvdevAxisRange&) = default;
};

/// What must be known of a pad to make contacts of its events.
struct EvdevTouchpad {
    std::string name;
    /// Ranges of ABS_MT_POSITION_X and _Y, or of ABS_X and ABS_Y of a pad without multitouch axes.
    EvdevAxisRange x;
    EvdevAxisRange y;
    /// Number of slots (ABS_MT_SLOT maximum + 1); 0 for the older protocol of SYN_MT_REPORT or no multitouch at all.
    int slotCount = 0;
};

/// Turns the event stream of a pad into contact frames and button events. Survives any order and any values. Not
/// thread-safe.
///
/// A contact's identifier is its tracking id, or a number from 1 if the driver sends none. If BTN_TOOL_DOUBLETAP to
/// BTN_TOOL_QUINTTAP report more fingers than there are contacts, the missing ones get the identifiers -2, -3, … and
/// the place of the oldest contact, and so does a contact without a place. A place outside the axis range becomes its
/// border, and one on an axis without extent the middle.
class EvdevFrameAssembler {
  public:
    /// Slots beyond are ignored.
    static constexpr int kMaximumSlots = 256;
    /// Button events in one report; those beyond are ignored.
    static constexpr std::size_t kMaximumButtonEvents = 32;

    explicit EvdevFrameAssembler(EvdevTouchpad touchpad);

    using Sink = std::function<void(const PadEvent&)>;

    /// Takes one event. At each SYN_REPORT, `sink` gets the frame if a finger is on the pad or the last one has just
    /// lifted, then the button events of the report in their order: the frame shows how many fingers rested at the
    /// press. All have the time of the SYN_REPORT.
    ///
    /// After SYN_DROPPED, events up to the next SYN_REPORT are ignored and the state stays. The reader of a live device
    /// then sends the device's real state as events; only differences have an effect.
    void process(const EvdevEvent& event, const Sink& sink);

  private:
    enum class Protocol { slots, contactReports, singleTouch };

    struct Slot {
        std::int32_t trackingId = -1;  // negative: empty
        // Kept when the finger lifts: the kernel does not repeat a value that the slot's next finger shares.
        std::optional<std::int32_t> x;
        std::optional<std::int32_t> y;
        /// Grows with every touch-down: the oldest contact has the smallest.
        std::uint64_t touchDown = 0;
    };

    void takeSynchronization(const EvdevEvent& event, const Sink& sink);
    void takeKey(const EvdevEvent& event);
    void takeAxis(const EvdevEvent& event);
    void takeSlotAxis(const EvdevEvent& event);
    void setTrackingId(Slot& slot, std::int32_t trackingId);
    void setButton(bool& isDown, std::int32_t value);
    void finishContactReports();
    void deliver(Seconds time, const Sink& sink);

    Point place(std::optional<std::int32_t> x, std::optional<std::int32_t> y, Point fallback) const;
    void collectSlots(TouchSamples& samples) const;
    void collectContactReports(TouchSamples& samples) const;
    void collectSingleTouch(TouchSamples& samples) const;
    void addMissing(TouchSamples& samples, Point first) const;

    EvdevTouchpad m_touchpad;
    Protocol m_protocol;
    bool m_isDropping = false;
    bool m_hadFingers = false;

    std::vector<Slot> m_slots;
    std::int32_t m_currentSlot = 0;
    std::uint64_t m_touchDowns = 0;

    EvdevContactMatcher m_matcher;
    bool m_hasContactReport = false;
    bool m_saysLifted = false;

    // The state of a pad without multitouch.
    std::optional<std::int32_t> m_x;
    std::optional<std::int32_t> m_y;
    bool m_isTouched = false;
    ContactId m_singleId = 0;

    /// Which of the "n fingers" keys are down, for n = 1 … 5.
    std::array<bool, 5> m_fingerKeys{};
    bool m_isLeftDown = false;
    bool m_isRightDown = false;
    InlineVector<PadButton, kMaximumButtonEvents> m_buttonEvents;
};

}  // namespace kinesta
