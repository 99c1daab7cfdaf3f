#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "input/recording/RecordingReading.h"
#include "support/NumberText.h"
#include "support/TemporaryFolder.h"

namespace kinesta {

using Texts = std::vector<std::string>;

/// The inputs that one error is for.
using Refusals = std::vector<std::pair<std::string, Texts>>;

/// One event as short text: "5@0.25,0.75 6@0.5,0.5", "no finger", "down", "pressure 2", "settings".
inline std::string contentText(const RecordingEvent& event) {
    if (const auto* pointer = std::get_if<RecordedPointer>(&event.content))
        return *pointer == RecordedPointer::down ? "down" : "up";
    if (const auto* pressure = std::get_if<RecordedPressure>(&event.content))
        return "pressure " + std::to_string(pressure->stage);
    const auto* frame = std::get_if<RecordedFrame>(&event.content);
    if (!frame)
        return "settings";
    std::string text;
    for (const TouchSample& sample : frame->samples)
        text += (text.empty() ? "" : " ") + std::to_string(sample.id) + "@" + numberText(sample.position.x) + "," +
                numberText(sample.position.y);
    if (text.empty())
        text = "no finger";
    return frame->received ? text + " received " + numberText(*frame->received) : text;
}

/// The same after its time.
inline std::string eventText(const RecordingEvent& event) { return numberText(event.time) + " " + contentText(event); }

/// All that a recording gave.
struct Reading {
    RecordingHeader header;
    std::vector<RecordingEvent> events;
    std::string error;

    Texts texts() const {
        Texts texts;
        for (const RecordingEvent& event : events)
            texts.push_back(eventText(event));
        return texts;
    }
};

inline Reading read(std::istream& stream, std::istream* device = nullptr) {
    Reading reading;
    auto reader = openRecording(stream, "x", device);
    if (!reader) {
        reading.error = reader.error().message;
        return reading;
    }
    reading.header = (*reader)->header();
    for (;;) {
        auto next = (*reader)->next();
        const auto again = next && *next ? next : (*reader)->next();
        if (!next) {
            reading.error = next.error().message;
            EXPECT_TRUE(!again && again.error().message == reading.error) << "an error does not last";
            return reading;
        }
        if (!*next) {
            EXPECT_TRUE(again && !*again) << "the end does not last";
            return reading;
        }
        reading.events.push_back(**next);
    }
}

inline Reading read(const std::string& text) {
    std::istringstream stream(text);
    return read(stream);
}

inline std::string exampleText(const std::string& name) {
    return readText(KINESTA_SOURCE_DIR "/examples/recordings/" + name);
}

}  // namespace kinesta
