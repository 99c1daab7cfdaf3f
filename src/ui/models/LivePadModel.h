#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "input/CornerPalmRejectionFilter.h"
#include "input/PadEvent.h"
#include "recognition/AnchorDrawRecognizer.h"
#include "rules/RuleSelection.h"

namespace kinesta {

/// One touch as the live pad shows it. Positions run 0…1, y upward.
struct LiveTouch {
    enum class Form { moving, still, palm, lifted };

    /// Of this touch alone; a driver gives the id of a lifted finger to the next one.
    std::uint64_t number = 0;
    ContactId id = 0;
    Form form = Form::moving;
    Point at;
    double opacity = 1;
    /// The way of the finger, oldest point first; fewer than two points are no trail.
    std::vector<Point> trail;

    friend bool operator==(const LiveTouch&, const LiveTouch&) = default;
};

/// The gesture that was just recognized.
struct LiveGesture {
    DetectedGesture gesture;
    std::string text;
    double opacity = 1;

    friend bool operator==(const LiveGesture&, const LiveGesture&) = default;
};

/// What the live pad shows at each moment: the fingers, their trails, and the gesture they made. Times are uptimes.
class LivePadModel {
  public:
    static constexpr Seconds kTrail = 1.2;
    /// How long what a finger has left behind stays, and then fades.
    static constexpr Seconds kKept = 1;
    static constexpr Seconds kFading = 0.2;
    /// A finger that rests this long can hold a corner.
    static constexpr AnchorDrawRecognizer::Limits kRest{};

    /// Counts for touches that begin from now on.
    void setPalmRejection(const CornerPalmRejectionSettings& settings) { m_palms.setSettings(settings); }
    void setReducesMotion(bool isReduced) { m_fading = isReduced ? 0 : kFading; }

    void take(const PadEvent& event);
    void tell(const DetectedGesture& gesture, const std::string& text, Uptime now);
    /// The pad is no longer read.
    void clear();

    std::vector<LiveTouch> touches(Uptime now) const;
    std::optional<LiveGesture> gesture(Uptime now) const;
    /// When the picture changes by itself; not after `now` if it keeps changing, nothing if it does not.
    std::optional<Uptime> nextChange(Uptime now) const;

  private:
    struct Step {
        Uptime time = 0;
        Point at;
    };
    struct Track {
        std::uint64_t number = 0;
        ContactId id = 0;
        bool isPalm = false;
        Step resting;
        std::vector<Step> steps;  // the last one is where the finger is
        std::optional<Uptime> liftedAt;
    };
    struct Reported {
        DetectedGesture gesture;
        std::string text;
        Uptime time = 0;
    };

    void land(const TouchSample& sample, Uptime now);
    static void move(Track& track, const TouchSample& sample, Uptime now);
    void lift(std::span<const TouchSample> present, Uptime now);
    double opacity(Uptime begin, Uptime now) const;
    std::optional<Uptime> nextFade(Uptime begin, Uptime now) const;
    /// The steps that are still seen.
    static std::span<const Step> trail(const Track& track, Uptime now);

    CornerPalmRejectionFilter m_palms;
    Seconds m_fading = kFading;
    std::uint64_t m_lastNumber = 0;
    std::vector<Track> m_tracks;
    std::optional<Reported> m_reported;
};

}  // namespace kinesta
