#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "support/Seconds.h"

namespace kinesta {

/// A position in the window server's coordinates, which span all displays.
struct DesktopLocation {
    double x = 0;
    double y = 0;

    friend bool operator==(const DesktopLocation&, const DesktopLocation&) = default;
};

/// Direction of a key or button event.
enum class KeyTransition { down, up };

/// A system-defined event, at (0, 0), without modifier flags or window. A volume key has the subtype
/// kAuxiliaryControlButtons.
struct SystemDefinedEvent {
    static constexpr std::int16_t kAuxiliaryControlButtons = 8;
    static constexpr std::int64_t kSoundUp = 0;
    static constexpr std::int64_t kSoundDown = 1;
    static constexpr std::int64_t kPressed = 0x0A;
    static constexpr std::int64_t kReleased = 0x0B;

    Uptime timestamp = 0;
    std::int16_t subtype = 0;
    /// For an auxiliary control button: the key in bits 16–31 (kSoundUp, kSoundDown), its state in bits 8–15
    /// (kPressed, kReleased), bits 0–7 zero (no repeat).
    std::int64_t data1 = 0;
    std::int64_t data2 = 0;
};

/// The source of synthesized events: the state of the hardware's keys and buttons.
class EventSource {
  public:
    virtual ~EventSource() = default;
};

/// An event that may be posted.
class SynthesizedEvent {
  public:
    virtual ~SynthesizedEvent() = default;

    /// Replaces the modifier flags; masks as in ShortcutKey::eventFlags(). An event whose flags were never set has
    /// those of its source, not "no modifiers".
    virtual void setFlags(std::uint64_t flags) = 0;

    /// Sets the click count of a mouse event; 1 is a single click.
    virtual void setClickState(std::int64_t clickCount) = 0;

    /// Sends the event as if it came from the hardware. At most once per event; does not wait.
    virtual void post() = 0;
};

/// The port that makes keyboard, mouse and media-key events. Main thread only.
///
/// Every function returns null or an empty optional on failure, and accepts a null source, which means the system's
/// default.
class EventSynthesizer {
  public:
    virtual ~EventSynthesizer() = default;

    virtual std::unique_ptr<EventSource> makeSource() = 0;

    /// The position of the pointer, read from an event made for that purpose.
    virtual std::optional<DesktopLocation> probePointerLocation(EventSource* source) = 0;

    /// An event of the key with this ANSI virtual key code; 63 is fn.
    virtual std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                           KeyTransition transition) = 0;

    /// A center mouse button event at `location`.
    virtual std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                                    DesktopLocation location) = 0;

    virtual std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& event) = 0;
};

}  // namespace kinesta
