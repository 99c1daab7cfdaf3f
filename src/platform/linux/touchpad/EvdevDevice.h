#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "input/PadEvent.h"
#include "input/evdev/EvdevFrameAssembler.h"
#include "input/evdev/PressureStageTracker.h"
#include "platform/linux/process/FileDescriptor.h"
#include "platform/linux/touchpad/TouchpadCandidate.h"
#include "support/Result.h"

struct input_event;
struct libevdev;

namespace kinesta {

/// An open touchpad: its events become contact frames, clicks and pressure stages. Never grabbed, so that the desktop
/// goes on reading it. Used by one thread at a time.
class EvdevDevice {
  public:
    using Sink = std::function<void(const PadEvent&)>;
    enum class ReadOutcome { drained, gone };

    /// Opens the pad. The error names the pad, what is wrong and, where permission is missing, the command that
    /// mends it.
    static Result<std::unique_ptr<EvdevDevice>> open(const TouchpadCandidate& candidate,
                                                     PressureStageTracker::Limits limits = {});
    ~EvdevDevice();
    EvdevDevice(const EvdevDevice&) = delete;
    EvdevDevice& operator=(const EvdevDevice&) = delete;

    /// Becomes readable when read() has something to do.
    int fileDescriptor() const { return m_descriptor.number(); }
    const EvdevTouchpad& touchpad() const { return m_touchpad; }
    bool canTellPressure() const { return m_pressureRange.has_value(); }
    /// How many fingers it can tell of at once, be it without their places; 0 if that cannot be known beforehand.
    int fingers() const;

    /// Tells what has happened, without waiting for more; the first time beginning with the fingers that rest on the
    /// pad already, but not a button that is held: its press was no one's click here. After a loss of events (the
    /// reader was too slow) the contacts are brought to the device's real state: what lifted in between lifts, what
    /// landed lands. Times never decrease; they are those of the kernel, on the monotonic clock. `gone` when the
    /// device no longer exists.
    ReadOutcome read(const Sink& sink);

    /// Lifts all fingers: tells an empty frame if the last one had fingers. For when the pad is gone or left alone.
    void liftAll(const Sink& sink);

  private:
    struct LibevdevFree {
        void operator()(libevdev* device) const;
    };

    EvdevDevice(FileDescriptor descriptor, std::unique_ptr<libevdev, LibevdevFree> device, EvdevTouchpad touchpad,
                PressureStageTracker::Limits limits);

    void tellPresentState(const Sink& sink);
    void process(Seconds time, unsigned type, unsigned code, int value, const Sink& sink);
    void resynchronize(const input_event& dropped, const Sink& sink);
    void tellPressureStage(const Sink& sink);
    double strongestPressure() const;

    FileDescriptor m_descriptor;
    std::unique_ptr<libevdev, LibevdevFree> m_device;
    EvdevTouchpad m_touchpad;
    /// Of ABS_MT_PRESSURE, if the pad measures force.
    std::optional<EvdevAxisRange> m_pressureRange;
    EvdevFrameAssembler m_assembler;
    PressureStageTracker m_pressureStage;
    Seconds m_lastTime = 0;
    bool m_isFirstRead = true;
    bool m_hasFingers = false;
    /// Made once, for process() must not allocate: notes what passes by on its way to the sink of the moment.
    const Sink* m_sink = nullptr;
    Sink m_noting;
};

}  // namespace kinesta
