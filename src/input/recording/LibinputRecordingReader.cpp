#include "input/recording/LibinputRecordingReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <system_error>
#include <utility>

#include "input/evdev/EvdevCodes.h"

namespace kinesta {
namespace {

using Kind = YamlEvents::Kind;

std::optional<std::int64_t> integerOf(std::string_view text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

template <typename Number>
bool fits(std::int64_t value) {
    return value >= std::numeric_limits<Number>::min() && value <= std::numeric_limits<Number>::max();
}

}  // namespace

Result<std::unique_ptr<RecordingReading>> LibinputRecordingReader::open(std::unique_ptr<RecordingInput> input) {
    std::unique_ptr<LibinputRecordingReader> reader(new LibinputRecordingReader(std::move(input)));
    if (!reader->findTouchpad())
        return *reader->m_input->failure();
    return std::unique_ptr<RecordingReading>(std::move(reader));
}

Result<std::optional<RecordingEvent>> LibinputRecordingReader::next() {
    for (;;) {
        if (m_input->failure())
            return *m_input->failure();
        if (auto event = m_events->next())
            return event;
        if (m_place == Place::end)
            return std::optional<RecordingEvent>();
        if (!advance())
            return *m_input->failure();
    }
}

// A function that reads a value starts at its first piece and ends at its last.

bool LibinputRecordingReader::findTouchpad() {
    m_yaml.next();
    if (!expect(Kind::beginMapping, "a recording of libinput record begins with keys and values"))
        return false;
    while (const auto key = nextKey()) {
        const bool isVersion = *key == "version";
        const bool isDevices = *key == "devices";
        m_yaml.next();
        if (isVersion && m_yaml.text() != "1")
            return fail("only version 1 of the format of libinput record is known");
        if (!isDevices)
            m_yaml.skipValue();
        else if (!findTouchpadInDevices())
            return false;
        else if (m_events)
            return true;
    }
    return fail("the recording holds no events of a trackpad");
}

bool LibinputRecordingReader::findTouchpadInDevices() {
    if (!expect(Kind::beginSequence, "\"devices\" is not a list"))
        return false;
    while (m_yaml.next() != Kind::endSequence) {
        if (!expect(Kind::beginMapping, "a device is not described by keys and values") || !findEventsInDevice())
            return false;
        if (m_events)
            return true;
    }
    return true;
}

bool LibinputRecordingReader::findEventsInDevice() {
    EvdevDescription description;
    while (const auto key = nextKey()) {
        const bool isDescription = *key == "evdev";
        const bool isEvents = *key == "events";
        m_yaml.next();
        if (isDescription) {
            if (!readDescription(description))
                return false;
        } else if (isEvents && description.isTouchpad()) {
            m_header.device = description.name();
            m_events.emplace(description.touchpad());
            // A recording that ended before the first event has nothing after the key.
            m_place = m_yaml.kind() == Kind::scalar && m_yaml.text().empty() ? Place::end : Place::events;
            return m_place == Place::end || expect(Kind::beginSequence, "\"events\" is not a list");
        } else {
            m_yaml.skipValue();
        }
    }
    return m_yaml.kind() == Kind::endMapping || fail("a device is not described by keys and values");
}

bool LibinputRecordingReader::readDescription(EvdevDescription& description) {
    return readMapping("\"evdev\"", [&](std::string_view key) {
        if (key == "codes")
            return readCodes(description);
        if (key == "absinfo")
            return readAxes(description);
        if (key == "properties")
            return readIntegers([&](std::int64_t property) { description.addProperty(property); });
        if (key == "name")
            description.setName(std::string(m_yaml.text()));
        m_yaml.skipValue();
        return true;
    });
}

bool LibinputRecordingReader::readCodes(EvdevDescription& description) {
    return readMapping("\"codes\"", [&](std::string_view type) {
        if (integerOf(type) == evdev::kTypeKey)
            return readIntegers([&](std::int64_t code) { description.addKey(code); });
        m_yaml.skipValue();
        return true;
    });
}

bool LibinputRecordingReader::readAxes(EvdevDescription& description) {
    return readMapping("\"absinfo\"", [&](std::string_view axis) {
        const auto code = integerOf(axis);
        std::array<std::int64_t, 2> range{};
        std::size_t count = 0;
        const auto take = [&](std::int64_t value) {
            if (count < range.size())
                range[count] = value;
            ++count;
        };
        if (!readIntegers(take))
            return false;
        if (!code || count < range.size() || !fits<std::int32_t>(range[0]) || !fits<std::int32_t>(range[1]))
            return fail("an axis is not of the form \"code: [minimum, maximum, …]\"");
        description.setAxis(*code, {static_cast<std::int32_t>(range[0]), static_cast<std::int32_t>(range[1])});
        return true;
    });
}

bool LibinputRecordingReader::readMapping(const std::string& name,
                                          const std::function<bool(std::string_view)>& readValue) {
    const std::string problem = name + " is not described by keys and values";
    if (!expect(Kind::beginMapping, problem))
        return false;
    while (const auto key = nextKey()) {
        const std::string ownKey(*key);
        m_yaml.next();
        if (!readValue(ownKey))
            return false;
    }
    return m_yaml.kind() == Kind::endMapping || fail(problem);
}

bool LibinputRecordingReader::readIntegers(const std::function<void(std::int64_t)>& take) {
    if (!expect(Kind::beginSequence, "a list of numbers is missing"))
        return false;
    while (m_yaml.next() != Kind::endSequence) {
        const auto value = m_yaml.kind() == Kind::scalar ? integerOf(m_yaml.text()) : std::nullopt;
        if (!value)
            return fail("a list holds something other than whole numbers");
        take(*value);
    }
    return true;
}

// Reads one piece at a time, so that the memory does not grow with the list.
bool LibinputRecordingReader::advance() {
    m_yaml.next();
    switch (m_place) {
        case Place::events:
            if (m_yaml.kind() == Kind::endSequence)
                m_place = Place::end;
            else if (m_yaml.kind() == Kind::beginMapping)
                m_place = Place::item;
            else
                return fail("an event is not described by keys and values");
            return true;
        case Place::item: {
            if (m_yaml.kind() == Kind::endMapping) {
                m_place = Place::events;
                return true;
            }
            if (!expect(Kind::scalar, "an event is not described by keys and values"))
                return false;
            const bool isEvdev = m_yaml.text() == "evdev";
            m_yaml.next();
            if (!isEvdev)
                return m_yaml.skipValue() || fail({});
            m_place = Place::evdev;
            return expect(Kind::beginSequence, "\"evdev\" is not a list");
        }
        case Place::evdev:
            if (m_yaml.kind() != Kind::endSequence)
                return readEvent();
            m_place = Place::item;
            return true;
        case Place::end:
            break;
    }
    return true;
}

bool LibinputRecordingReader::readEvent() {
    std::array<std::int64_t, 5> numbers{};
    std::size_t count = 0;
    const auto take = [&](std::int64_t value) {
        if (count < numbers.size())
            numbers[count] = value;
        ++count;
    };
    if (!readIntegers(take))
        return false;
    const auto& [seconds, microseconds, type, code, value] = numbers;
    constexpr std::int64_t kMicrosecondsInSecond = 1'000'000;
    if (count != numbers.size() || seconds < 0 || microseconds < 0 || microseconds >= kMicrosecondsInSecond ||
        !fits<std::uint16_t>(type) || !fits<std::uint16_t>(code) || !fits<std::int32_t>(value))
        return fail("this is not an event of the form [seconds, microseconds, type, code, value]");
    // One division of whole numbers gives the double nearest to the decimal fraction; a sum would round twice.
    constexpr std::int64_t kLatest = std::numeric_limits<std::int64_t>::max() / kMicrosecondsInSecond - 1;
    const std::int64_t time = std::min(seconds, kLatest) * kMicrosecondsInSecond + microseconds;
    const auto problem = m_events->process({.time = static_cast<double>(time) / kMicrosecondsInSecond,
                                            .type = static_cast<std::uint16_t>(type),
                                            .code = static_cast<std::uint16_t>(code),
                                            .value = static_cast<std::int32_t>(value)});
    return !problem || fail(*problem);
}

bool LibinputRecordingReader::expect(Kind kind, std::string_view what) { return m_yaml.kind() == kind || fail(what); }

std::optional<std::string_view> LibinputRecordingReader::nextKey() {
    if (m_yaml.next() != Kind::scalar)
        return std::nullopt;
    return m_yaml.text();
}

bool LibinputRecordingReader::fail(std::string_view what) {
    m_input->fail(m_yaml.line(), m_yaml.kind() == Kind::failed ? std::string_view(m_yaml.problem()) : what);
    return false;
}

}  // namespace kinesta
