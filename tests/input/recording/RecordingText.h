#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "input/recording/RecordingReading.h"
#include "support/TableRows.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

namespace kinesta {

/// An event without its time: "5@0.25,0.75 6@0.5,0.5", "no finger", "down", "pressure 2", "settings".
inline std::string contentText(const RecordingEvent& event) {
    const auto* pad = std::get_if<PadEvent>(&event);
    if (!pad)
        return "settings";
    if (const auto* button = std::get_if<PadButton>(&pad->content))
        return *button == PadButton::down ? "down" : "up";
    if (const auto* pressure = std::get_if<PadPressure>(&pad->content))
        return "pressure " + std::to_string(pressure->stage);
    const auto& frame = std::get<PadFrame>(pad->content);
    std::string text;
    for (const TouchSample& sample : frame.samples)
        text += (text.empty() ? "" : " ") + std::to_string(sample.id) + "@" + numberText(sample.position.x) + "," +
                numberText(sample.position.y);
    return (text.empty() ? "no finger" : text) + (frame.received ? " received " + numberText(*frame.received) : "");
}

inline std::string eventText(const RecordingEvent& event) {
    return numberText(eventTime(event)) + " " + contentText(event);
}

/// The contents of a recording, up to an error.
struct Reading {
    RecordingHeader header;
    std::vector<RecordingEvent> events;
    std::string error;

    /// "device: event; event", and the error.
    std::string text() const {
        std::string text = header.device + ": ";
        for (const RecordingEvent& event : events)
            text += (&event == events.data() ? "" : "; ") + eventText(event);
        return text + error;
    }
};

inline Reading read(std::istream& stream, std::istream* device = nullptr) {
    auto reader = openRecording(stream, "x", device);
    if (!reader)
        return {.header = {}, .events = {}, .error = reader.error().message};
    Reading reading{.header = (*reader)->header(), .events = {}, .error = ""};
    for (;;) {
        const auto next = (*reader)->next();
        if (next && *next) {
            reading.events.push_back(**next);
            continue;
        }
        const auto again = (*reader)->next();
        EXPECT_TRUE(!(again && *again) && again.isValue() == next.isValue()) << "an end or an error does not last";
        reading.error = next ? "" : next.error().message;
        return reading;
    }
}

inline Reading read(const std::string& text) {
    std::istringstream stream(text);
    return read(stream);
}

/// Checks rows "error => input | input": each input, between two texts, gives the error at the place.
inline void expectErrors(const std::string& before, const std::string& after, const std::string& place,
                         const std::string& table) {
    for (const auto& row : tableRows(table))
        for (const std::string& input : split(row[1], " | "))
            EXPECT_EQ(read(before + input + after).error, "x:" + place + row[0]) << input;
}

inline std::string exampleText(const std::string& name) {
    return readText(KINESTA_SOURCE_DIR "/examples/recordings/" + name);
}

}  // namespace kinesta
