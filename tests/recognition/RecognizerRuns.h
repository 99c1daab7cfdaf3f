#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "recognition/FrameRecognition.h"
#include "recognition/PhysicalClickRecognizer.h"
#include "rules/GestureKind.h"
#include "support/PadScript.h"

namespace kinesta::testing {

inline std::string text(const TapSequence& s) {
    return std::to_string(s.fingers) + " fingers x" + std::to_string(s.taps);
}
inline std::string text(const TipTapEvent& e) {
    return std::string(rawValue(e.direction)) + " of " + std::to_string(e.anchorId);
}
inline std::string text(const TipTapSequence& s) {
    return text(TipTapEvent{s.anchorId, s.direction}) + " x" + std::to_string(s.taps);
}
inline std::string text(const EdgeSlideEvent& e) {
    return std::to_string(e.fingers) + " fingers " + std::string(rawValue(e.side)) + " " + std::to_string(e.steps);
}
inline std::string text(const AnchorDrawEvent& e) {
    return std::string(rawValue(e.corner)) + " " + std::string(rawValue(e.pattern));
}
inline std::string text(const PhysicalClickSequence& s) {
    return text(TapSequence{s.fingers, s.clicks}) + " " + (s.pressure ? std::string(rawValue(*s.pressure)) : "any");
}
template <typename T>
std::string text(const std::optional<T>& value) {
    return value ? text(*value) : "nothing";
}

/// What a recognizer says of a script's frames, joined by "; "; the frames without a result are left out.
template <typename Recognizer>
std::string run(Recognizer& recognizer, const PadScript& script, bool isReversed = false) {
    std::string results;
    for (const RecordingEvent& event : script.events()) {
        TouchSamples samples = std::get<RecordedFrame>(event.content).samples;
        if (isReversed)
            std::reverse(samples.begin(), samples.end());
        const auto result = [&] {
            if constexpr (requires { recognizer.process(samples, event.time); })
                return recognizer.process(samples, event.time);
            else
                return recognizer.process(samples);
        }();
        if (result)
            results += (results.empty() ? "" : "; ") + text(*result);
    }
    return results;
}

/// What each script is called and what a fresh recognizer makes of it, in whatever order the driver lists the fingers.
template <typename Recognizer>
void expectResults(const std::vector<std::tuple<const char*, PadScript, const char*>>& cases) {
    for (const auto& [name, script, results] : cases)
        for (const bool isReversed : {false, true}) {
            Recognizer recognizer;
            EXPECT_EQ(run(recognizer, script, isReversed), results) << name << (isReversed ? ", reversed" : "");
        }
}

}  // namespace kinesta::testing
