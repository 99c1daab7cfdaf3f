#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "input/recording/RecordingReading.h"
#include "support/TemporaryFolder.h"
#include "support/Text.h"

namespace kinesta {

using Texts = std::vector<std::string>;

/// Errors, each with the inputs that cause it.
using Refusals = std::vector<std::pair<std::string, Texts>>;

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

    Texts texts() const {
        Texts texts;
        for (const RecordingEvent& event : events)
            texts.push_back(eventText(event));
        return texts;
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

inline std::string exampleText(const std::string& name) {
    return readText(KINESTA_SOURCE_DIR "/examples/recordings/" + name);
}

/// An input that after its beginning repeats one character for ever, or breaks, as a folder or a failing disk does.
class ContinuedInput final : public std::streambuf {
  public:
    explicit ContinuedInput(std::string beginning, std::optional<char> rest = std::nullopt)
        : m_piece(std::move(beginning)), m_rest(rest) {
        show();
    }

    std::size_t given = 0;

  private:
    void show() { setg(m_piece.data(), m_piece.data(), m_piece.data() + m_piece.size()); }
    int_type underflow() override {
        if (!m_rest)
            throw 5;
        given += m_piece.size();
        m_piece.assign(5000, *m_rest);
        show();
        return traits_type::to_int_type(*m_rest);
    }

    std::string m_piece;
    std::optional<char> m_rest;
};

/// An input without a buffer that never says how much it has, like that of a pipe shared with C.
class UnbufferedInput final : public std::streambuf {
  public:
    explicit UnbufferedInput(std::string text) : m_text(std::move(text)) {}

  private:
    int_type underflow() override {
        return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at]) : traits_type::eof();
    }
    int_type uflow() override {
        return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at++]) : traits_type::eof();
    }

    std::string m_text;
    std::size_t m_at = 0;
};

/// An output that counts its flushes and holds no more than a number of bytes.
class CountingOutput final : public std::streambuf {
  public:
    explicit CountingOutput(std::size_t capacity = std::string::npos) : m_capacity(capacity) {}

    std::string text;
    int flushes = 0;

  private:
    std::streamsize xsputn(const char* data, std::streamsize size) override {
        if (text.size() + static_cast<std::size_t>(size) > m_capacity)
            return 0;
        text.append(data, static_cast<std::size_t>(size));
        return size;
    }
    int sync() override { return ++flushes, 0; }

    std::size_t m_capacity;
};

}  // namespace kinesta
