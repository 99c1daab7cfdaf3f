#include "input/recording/RecordingLineDecoder.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "input/TapWaitingInterval.h"
#include "input/recording/RecordingFormat.h"

namespace kinesta {
namespace {

using Kind = JsonScanner::Kind;

std::string quoted(std::string_view key) {
    std::string text(1, '"');
    text += key;
    text += '"';
    return text;
}

}  // namespace

Result<RecordingHeader> RecordingLineDecoder::header(std::string_view line) {
    // The version first: the header of another version may have other rules.
    m_problem.clear();
    if (!takeVersion(line))
        return Error{m_problem};
    JsonScanner json(line);
    RecordingHeader header;
    if (!takeHeader(json, header))
        return error(json);
    return header;
}

Result<RecordingEvent> RecordingLineDecoder::event(std::string_view line) {
    m_problem.clear();
    JsonScanner json(line);
    Result<RecordingEvent> event = RecordingEvent{};
    if (!takeEvent(json, *event))
        return error(json);
    return event;
}

bool RecordingLineDecoder::takeVersion(std::string_view line) {
    JsonScanner json(line);
    bool isRecording = false;
    std::optional<JsonNumber> version;
    json.beginObject();
    while (const auto key = json.nextKey()) {
        if (*key == "kinesta" && json.kind() == Kind::string)
            isRecording = json.string() == "recording";
        else if (*key == "version" && json.kind() == Kind::number)
            version = json.number();
        else
            json.skipValue();
    }
    if (!json.end())
        return fail(error(json).message);
    if (!isRecording)
        return fail("a recording begins with a header that says \"kinesta\":\"recording\"");
    if (!version || !version->integer)
        return fail("the header has no whole number \"version\"");
    if (*version->integer != RecordingFormat::kVersion)
        return fail("version " + std::to_string(*version->integer) + " of the format is not known, only version " +
                    std::to_string(RecordingFormat::kVersion));
    return true;
}

bool RecordingLineDecoder::takeHeader(JsonScanner& json, RecordingHeader& header) {
    json.beginObject();
    while (const auto key = json.nextKey()) {
        if (*key == "device") {
            if (json.kind() != Kind::string)
                return fail("\"device\" is not a text");
            if (const auto text = json.string())
                header.device = *text;
        } else if (*key == "settings") {
            if (!takeSettings(json, header.settings))
                return false;
        } else {
            json.skipValue();
        }
    }
    return json.end();
}

bool RecordingLineDecoder::takeEvent(JsonScanner& json, RecordingEvent& event) {
    auto& [time, content] = std::get<PadEvent>(event);
    std::optional<RecordedSettings> settings;
    bool hasTime = false;
    int contents = 0;
    std::optional<Seconds> received;
    std::string receivedProblem;
    if (json.kind() != Kind::object)
        return fail("the line is not a JSON object");
    json.beginObject();
    while (const auto key = json.nextKey()) {
        if (*key == "t") {
            hasTime = true;
            if (std::string problem = takeTime(json, *key, time); !problem.empty())
                return fail(std::move(problem));
        } else if (*key == "touches") {
            ++contents;
            if (!takeTouches(json, content.emplace<PadFrame>().samples))
                return false;
        } else if (*key == "received") {
            // Checked below, for it counts only beside touches; elsewhere it is an unknown key.
            receivedProblem = takeTime(json, *key, received.emplace());
        } else if (*key == "pointer") {
            ++contents;
            if (!takeButton(json, content.emplace<PadButton>()))
                return false;
        } else if (*key == "pressure") {
            ++contents;
            const auto number = json.kind() == Kind::number ? json.number() : std::nullopt;
            if (!number || !number->integer)
                return fail("\"pressure\" is not a whole number");
            content = PadPressure{*number->integer};
        } else if (*key == "settings") {
            ++contents;
            if (!takeSettings(json, settings.emplace()))
                return false;
        } else {
            json.skipValue();
        }
    }
    if (!json.end())
        return false;
    if (!hasTime)
        return fail("\"t\" is missing");
    if (contents != 1)
        return fail(std::string(contents == 0 ? "none" : "more than one") +
                    " of \"touches\", \"pointer\", \"pressure\" and \"settings\" is given");
    if (settings) {
        event = SettingsChange{time, *settings};
    } else if (auto* frame = std::get_if<PadFrame>(&content)) {
        if (!receivedProblem.empty())
            return fail(receivedProblem);
        frame->received = received;
    }
    return true;
}

// Takes any value. Returns what is wrong with it as a time, or an empty text.
std::string RecordingLineDecoder::takeTime(JsonScanner& json, std::string_view key, Seconds& time) {
    std::string name = quoted(key);  // the key is valid until the next read
    if (json.kind() != Kind::number) {
        json.skipValue();
        return name + " is not a number";
    }
    const auto number = json.number();
    time = number ? number->value : 0;
    if (!RecordingFormat::isTime(time))
        return name + " is not within 9.2e9 seconds";
    return {};
}

bool RecordingLineDecoder::takeTouches(JsonScanner& json, TouchSamples& samples) {
    if (json.kind() != Kind::array)
        return fail("\"touches\" is not an array");
    json.beginArray();
    while (json.nextElement()) {
        TouchSample sample;
        if (!takeTouch(json, sample))
            return fail("a touch is not of the form [id, x, y] with a 32-bit whole id and two numbers");
        samples.push_back(sample);
    }
    if (!areIdsUnique(samples))
        return fail("\"touches\" holds an id twice");
    return true;
}

bool RecordingLineDecoder::takeTouch(JsonScanner& json, TouchSample& sample) {
    if (json.kind() != Kind::array)
        return false;
    json.beginArray();
    const auto takeNumber = [&json] {
        return json.nextElement() && json.kind() == Kind::number ? json.number() : std::nullopt;
    };
    const auto id = takeNumber();
    if (!id || !id->integer || *id->integer < std::numeric_limits<ContactId>::min() ||
        *id->integer > std::numeric_limits<ContactId>::max())
        return false;
    const auto x = takeNumber();
    const auto y = x ? takeNumber() : std::nullopt;
    if (!y || json.nextElement())
        return false;
    sample = {static_cast<ContactId>(*id->integer), {x->value, y->value}};
    return true;
}

bool RecordingLineDecoder::areIdsUnique(const TouchSamples& samples) {
    if (samples.size() <= kInlineContacts) {
        for (const TouchSample* a = samples.begin(); a != samples.end(); ++a)
            if (std::any_of(samples.begin(), a, [a](const TouchSample& b) { return a->id == b.id; }))
                return false;
        return true;
    }
    m_ids.clear();
    for (const TouchSample& sample : samples)
        m_ids.push_back(sample.id);
    std::sort(m_ids.begin(), m_ids.end());
    return std::adjacent_find(m_ids.begin(), m_ids.end()) == m_ids.end();
}

bool RecordingLineDecoder::takeButton(JsonScanner& json, PadButton& button) {
    const auto text = json.kind() == Kind::string ? json.string() : std::nullopt;
    if (text != "down" && text != "up")
        return fail("\"pointer\" is neither \"down\" nor \"up\"");
    button = text == "down" ? PadButton::down : PadButton::up;
    return true;
}

bool RecordingLineDecoder::takeSettings(JsonScanner& json, RecordedSettings& settings) {
    if (json.kind() != Kind::object)
        return fail("\"settings\" is not an object");
    json.beginObject();
    while (const auto key = json.nextKey()) {
        if (*key == SettingsKeys::gesturesEnabled) {
            if (!takeBoolean(json, SettingsKeys::gesturesEnabled, settings.gesturesEnabled))
                return false;
        } else if (*key == SettingsKeys::cornerPalmRejectionEnabled) {
            if (!takeBoolean(json, SettingsKeys::cornerPalmRejectionEnabled, settings.cornerPalmRejectionEnabled))
                return false;
        } else if (*key == SettingsKeys::tapWaitingInterval) {
            const auto number = json.kind() == Kind::number ? json.number() : std::nullopt;
            if (!number || !number->integer || !TapWaitingInterval::fromRawValue(*number->integer))
                return fail(quoted(SettingsKeys::tapWaitingInterval) + " is none of 150, 200, 250, 300 and 400");
            settings.tapWaitingMilliseconds = static_cast<int>(*number->integer);
        } else if (*key == SettingsKeys::cornerPalmRejectionSensitivity) {
            const auto number = json.kind() == Kind::number ? json.number() : std::nullopt;
            if (!number)
                return fail(quoted(SettingsKeys::cornerPalmRejectionSensitivity) + " is not a number");
            settings.cornerPalmRejectionSensitivity = number->value;
        } else {
            json.skipValue();
        }
    }
    return json.problem().empty();
}

bool RecordingLineDecoder::takeBoolean(JsonScanner& json, std::string_view key, std::optional<bool>& value) {
    value = json.kind() == Kind::boolean ? json.boolean() : std::nullopt;
    return value || fail(quoted(key) + " is neither true nor false");
}

bool RecordingLineDecoder::fail(std::string problem) {
    m_problem = std::move(problem);
    return false;
}

// Malformed JSON comes first: a line cut in the middle of a touch is a cut line.
Error RecordingLineDecoder::error(const JsonScanner& json) const {
    if (!json.problem().empty())
        return Error{"this is not valid JSON: " + std::string(json.problem())};
    return Error{m_problem};
}

}  // namespace kinesta
