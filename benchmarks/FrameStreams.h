#pragma once

#include <cmath>
#include <numbers>
#include <vector>

#include "input/TrackpadContactFrame.h"

namespace kinesta {

inline constexpr Seconds kFrameInterval = 0.01;  // 100 Hz

/// Where a finger is at `progress` (0 to 1) of its movement, away from corners and edges.
inline Point fingerPosition(int finger, double progress) {
    return {0.32 + 0.09 * finger, 0.40 + 0.02 * finger + 0.2 * progress};
}

/// Frames as a pad sends them. Each stroke takes `frames` frames, the last of them without fingers, and has new ids for
/// its fingers.
inline std::vector<TrackpadContactFrame> strokes(int count, int fingers, int frames, double travel) {
    std::vector<TrackpadContactFrame> stream;
    Seconds time = 1;
    for (int stroke = 0; stroke < count; ++stroke) {
        for (int frame = 0; frame < frames; ++frame, time += kFrameInterval) {
            TrackpadContactFrame& next = stream.emplace_back();
            next.timestamp = time;
            for (int finger = 0; finger < fingers && frame + 1 < frames; ++finger)
                next.samples.push_back({stroke * fingers + finger, fingerPosition(finger, travel * frame / frames)});
        }
        time += 0.5;
    }
    return stream;
}

inline std::vector<TrackpadContactFrame> taps(int count, int fingers) { return strokes(count, fingers, 8, 0.02); }
inline std::vector<TrackpadContactFrame> moves(int count, int fingers) { return strokes(count, fingers, 100, 1); }

/// One finger rests in a corner while another draws diagonals and circles by turns.
inline std::vector<TrackpadContactFrame> drawings(int count) {
    constexpr int kFrames = 100;
    const TouchSample anchor{1, {0.1, 0.1}};
    std::vector<TrackpadContactFrame> stream;
    Seconds time = 1;
    for (int drawing = 0; drawing < count; ++drawing) {
        for (int frame = 0; frame < 20; ++frame, time += kFrameInterval)
            stream.push_back({TouchSamples{anchor}, time});
        for (int frame = 0; frame < kFrames; ++frame, time += kFrameInterval) {
            const double angle = 2 * std::numbers::pi * frame / kFrames;
            const Point place = drawing % 2 == 0 ? Point{0.3 + 0.006 * frame, 0.5 - 0.005 * frame}
                                                 : Point{0.6 + 0.2 * std::cos(angle), 0.5 + 0.2 * std::sin(angle)};
            stream.push_back({TouchSamples{anchor, {2, place}}, time});
        }
        stream.push_back({TouchSamples{anchor}, time});
    }
    return stream;
}

}  // namespace kinesta
