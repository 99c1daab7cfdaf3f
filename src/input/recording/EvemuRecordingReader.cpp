#include "input/recording/EvemuRecordingReader.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

#include "support/Text.h"

namespace kinesta {
namespace {

/// The fields of a line, separated by blanks; a comment ends it.
class Fields {
  public:
    explicit Fields(std::string_view text) : m_text(text) {}

    std::string_view next() {
        m_text.remove_prefix(std::min(m_text.find_first_not_of(" \t\r"), m_text.size()));
        if (m_text.starts_with('#'))
            m_text = {};
        const std::string_view field = m_text.substr(0, m_text.find_first_of(" \t\r"));
        m_text.remove_prefix(field.size());
        return field;
    }

    template <typename Number, typename... Base>
    bool next(Number& number, Base... base) {
        const std::string_view field = next();
        const char* const end = field.data() + field.size();
        const auto [parsed, error] = std::from_chars(field.data(), end, number, base...);
        return error == std::errc() && parsed == end && !field.empty();
    }

    bool next(Seconds& time) {
        const auto number = parsedNumber(next());
        time = number.value_or(0);
        return number.has_value();
    }

  private:
    std::string_view m_text;
};

std::optional<EvdevEvent> decodeEvent(std::string_view text) {
    Fields fields(text);
    EvdevEvent event;
    if (!fields.next(event.time) || !fields.next(event.type, 16) || !fields.next(event.code, 16) ||
        !fields.next(event.value) || !fields.next().empty())
        return std::nullopt;
    return event;
}

bool decodeAxis(std::string_view text, EvdevDescription& description) {
    Fields fields(text);
    std::uint16_t code = 0;
    EvdevAxisRange range;
    if (!fields.next(code, 16) || !fields.next(range.minimum) || !fields.next(range.maximum))
        return false;
    description.setAxis(code, range);
    return true;
}

std::string_view withoutIndent(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(" \t\r"), line.size()));
}

bool isComment(std::string_view line) { return line.empty() || line.starts_with('#'); }

constexpr std::string_view kBadEvent = "this is not an event of the form \"E: time type code value\"";

}  // namespace

Result<std::unique_ptr<RecordingReading>> EvemuRecordingReader::open(std::unique_ptr<RecordingInput> input,
                                                                     std::istream* device) {
    EvdevDescription description;
    auto firstEvent = readDescription(*input, description);
    if (!firstEvent)
        return firstEvent.error();
    if (!description.hasRanges()) {
        if (!device)
            return input->fail(
                "the recording does not contain the axis ranges of its device: give the file that describes the device "
                "with --device FILE.desc");
        EvdevDescription ownDescription;
        RecordingInput deviceInput(*device, "the device description");
        if (const auto read = readDescription(deviceInput, ownDescription); !read)
            return read.error();
        if (!ownDescription.hasRanges())
            return deviceInput.fail("the file does not contain the ranges of both axes of a trackpad");
        description = std::move(ownDescription);
    }
    std::unique_ptr<EvemuRecordingReader> reader(new EvemuRecordingReader(std::move(input)));
    reader->m_header.device = description.name();
    reader->m_events.emplace(description.touchpad());
    reader->m_firstEvent = *firstEvent;
    return std::unique_ptr<RecordingReading>(std::move(reader));
}

Result<std::optional<EvdevEvent>> EvemuRecordingReader::readDescription(RecordingInput& input,
                                                                        EvdevDescription& description) {
    for (;;) {
        const auto next = input.nextLine();
        if (!next)
            return next.error();
        if (!*next)
            return std::optional<EvdevEvent>();
        const std::string_view line = withoutIndent(**next);
        if (isComment(line))
            continue;
        const std::string_view kind = line.substr(0, 2);
        const std::string_view text = line.substr(kind.size());
        if (kind == "E:") {
            const auto event = decodeEvent(text);
            return event ? Result(event) : input.fail(kBadEvent);
        }
        if (kind == "N:")
            description.setName(std::string(trimmed(text)));
        else if (kind == "A:" && !decodeAxis(text, description))
            return input.fail("this is not an axis of the form \"A: code minimum maximum …\"");
        else if (kind != "A:" && kind != "I:" && kind != "P:" && kind != "B:" && kind != "L:" && kind != "S:")
            return input.fail("this is not a line of an evemu recording");
    }
}

Result<std::optional<RecordingEvent>> EvemuRecordingReader::next() {
    for (;;) {
        if (m_input->failure())
            return *m_input->failure();
        if (auto event = m_events->next())
            return event;
        std::optional<EvdevEvent> event = std::exchange(m_firstEvent, std::nullopt);
        if (!event) {
            const auto line = m_input->nextLine();
            if (!line)
                return line.error();
            if (!*line)
                return std::optional<RecordingEvent>();
            const std::string_view text = withoutIndent(**line);
            if (isComment(text))
                continue;
            event = text.starts_with("E:") ? decodeEvent(text.substr(2)) : std::nullopt;
            if (!event)
                return m_input->fail(kBadEvent);
        }
        if (const auto problem = m_events->process(*event))
            return m_input->fail(*problem);
    }
}

}  // namespace kinesta
