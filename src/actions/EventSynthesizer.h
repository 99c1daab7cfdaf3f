#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "support/Seconds.h"

namespace kinesta {

/// A place on the desktop in the window server's own coordinates and units, which span all displays.
struct DesktopLocation {
    double x = 0;
    double y = 0;

    friend bool operator==(const DesktopLocation&, const DesktopLocation&) = default;
};

/// The way a key or a button moves.
enum class KeyTransition { down, up };

/// An event of the system's own kind, at location (0, 0), without modifier flags and of no window. A volume key is
/// one of subtype kAuxiliaryControlButtons.
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

/// What synthesized events come from: the state of the hardware's keys and buttons. Released by its destructor.
class EventSource {
  public:
    virtual ~EventSource() = default;
};

/// An event that was made and may be posted. Released by its destructor, posted or not.
class SynthesizedEvent {
  public:
    virtual ~SynthesizedEvent() = default;

    /// Replaces the event's modifier flags; the masks are those of ShortcutKey::eventFlags(). An event whose flags
    /// were never set carries what its source says, not "no modifiers".
    virtual void setFlags(std::uint64_t flags) = 0;

    /// Says which click of a series a mouse event belongs to; 1 is a single click.
    virtual void setClickState(std::int64_t clickCount) = 0;

    /// Hands the event to the system, as if the hardware had sent it. At most once an event; does not wait.
    virtual void post() = 0;
};

/// The port that makes keyboard, mouse and media-key events. Main thread only.
///
/// Whatever can be made can also fail to be made, which is told by a null pointer or an empty optional. A null source
/// is allowed wherever a source is asked for: the system's own default stands in.
class EventSynthesizer {
  public:
    virtual ~EventSynthesizer() = default;

    virtual std::unique_ptr<EventSource> makeSource() = 0;

    /// Where the pointer is now, as an event made only to be asked tells it; nothing if that could not be made.
    virtual std::optional<DesktopLocation> probePointerLocation(EventSource* source) = 0;

    /// The stroke of the key with this ANSI virtual key code; 63 is the fn key.
    virtual std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                           KeyTransition transition) = 0;

    /// The center mouse button moving at `location`.
    virtual std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                                    DesktopLocation location) = 0;

    virtual std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& event) = 0;
};

}  // namespace kinesta
