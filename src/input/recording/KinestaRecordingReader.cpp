#include "input/recording/KinestaRecordingReader.h"

#include <utility>

namespace kinesta {

Result<std::unique_ptr<RecordingReading>> KinestaRecordingReader::open(std::unique_ptr<RecordingInput> input) {
    std::unique_ptr<KinestaRecordingReader> reader(new KinestaRecordingReader(std::move(input)));
    const auto line = reader->nextFilledLine();
    if (!line)
        return line.error();
    auto header = reader->m_decoder.header(line->value_or(std::string_view()));
    if (!header)
        return reader->m_input->fail(header.error().message);
    reader->m_header = std::move(*header);
    return std::unique_ptr<RecordingReading>(std::move(reader));
}

Result<std::optional<RecordingEvent>> KinestaRecordingReader::next() {
    const auto line = nextFilledLine();
    if (!line)
        return line.error();
    if (!*line)
        return std::optional<RecordingEvent>();
    auto event = m_decoder.event(**line);
    if (!event)
        return m_input->fail(event.error().message);
    if (const auto problem = m_order.take(eventTime(*event)))
        return m_input->fail(*problem);
    return std::optional<RecordingEvent>(std::move(*event));
}

Result<std::optional<std::string_view>> KinestaRecordingReader::nextFilledLine() {
    for (;;) {
        auto line = m_input->nextLine();
        if (!line || !*line || (*line)->find_first_not_of(" \t\r") != std::string_view::npos)
            return line;
    }
}

}  // namespace kinesta
