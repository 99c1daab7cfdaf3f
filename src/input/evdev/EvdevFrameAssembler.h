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

/// Makes contact frames and button events of a pad's event stream, in any order and with any values that a driver
/// may send. Not thread-safe.
///
/// Contacts have their tracking id as identifier, or one of its own making (1, 2, …) where the driver gives none. Where
/// BTN_TOOL_DOUBLETAP to BTN_TOOL_QUINTTAP tell of more fingers than there are contacts, the missing ones are -2, -3, …
/// and lie where the contact is that was there first; so does a contact whose place was never told. A place
/// outside the axis range counts as its border, and one on an axis without extent as the middle.
class EvdevFrameAssembler {
  public:
    /// Slots that are followed at most, whatever the device claims.
    static constexpr int kMaximumSlots = 256;
    /// Button events of one report that are kept at most; those beyond are ignored.
    static constexpr std::size_t kMaximumButtonEvents = 32;

    explicit EvdevFrameAssembler(EvdevTouchpad touchpad);

    using Sink = std::function<void(const PadEvent&)>;

    /// Takes one event. At each SYN_REPORT, `sink` gets the frame (as a PadFrame) if a finger is on the pad or
    /// the last one has just lifted, then the button events of the report (as PadButton) in their order: the
    /// frame tells how many fingers rested when the button went down. All have the time of the SYN_REPORT.
    ///
    /// After SYN_DROPPED, what comes up to the next SYN_REPORT is ignored and the state stays; whoever reads a live
    /// device then sends the device's real state as events, of which only what is new has an effect.
    void process(const EvdevEvent& event, const Sink& sink);

  private:
    enum class Protocol { slots, contactReports, singleTouch };

    struct Slot {
        std::int32_t trackingId = -1;  // negative: empty
        // Kept when the finger lifts: the kernel does not repeat a value that the slot's next finger shares.
        std::optional<std::int32_t> x;
        std::optional<std::int32_t> y;
        /// Grows with every touch-down; tells who was there first.
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

    // What a pad without multitouch tells.
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
