#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "input/PadEvent.h"
#include "input/evdev/EvdevFrameAssembler.h"
#include "input/evdev/PressureStageTracker.h"
#include "platform/linux/touchpad/TouchpadCandidate.h"
#include "platform/posix/FileDescriptor.h"
#include "support/Result.h"

struct input_event;
struct libevdev;

namespace kinesta {

/// An open touchpad: its events become contact frames, clicks and pressure stages. Never grabbed, so that the desktop
/// keeps reading it. Used by one thread at a time.
class EvdevDevice {
  public:
    using Sink = std::function<void(const PadEvent&)>;
    enum class ReadOutcome { drained, gone };

    /// Opens the pad. The error names the pad, what is wrong and, if permission is missing, the command that grants
    /// it.
    static Result<std::unique_ptr<EvdevDevice>> open(const TouchpadCandidate& candidate,
                                                     PressureStageTracker::Limits limits = {});
    ~EvdevDevice();
    EvdevDevice(const EvdevDevice&) = delete;
    EvdevDevice& operator=(const EvdevDevice&) = delete;

    /// Becomes readable when read() has something to do.
    int fileDescriptor() const { return m_descriptor.number(); }
    const EvdevTouchpad& touchpad() const { return m_touchpad; }
    bool canTellPressure() const { return m_pressureRange.has_value(); }
    /// Width to height; 0 if the pad does not tell its size.
    double proportions() const;
    /// How many fingers it reports at once, with or without their positions; 0 if that is not known in advance.
    int fingers() const;

    /// Reports all pending events, without waiting for more. The first call reports the fingers that rest on the pad
    /// already, but no held button: that press was not meant for Kinesta. After a loss of events (the reader was too
    /// slow) the contacts are synchronized with the device: lifted ones lift, new ones land. Times are the kernel's, on
    /// the monotonic clock, and never decrease. `gone` when the device no longer exists.
    ReadOutcome read(const Sink& sink);

    /// Lifts all fingers: reports an empty frame if the last one had fingers. For a pad that is gone or no longer read.
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
    /// Records the state of events and passes them to the current sink. Created once, as process() must not allocate.
    const Sink* m_sink = nullptr;
    Sink m_noting;
};

}  // namespace kinesta
