#include "input/recording/YamlEvents.h"

#include <yaml.h>

#include <algorithm>
#include <utility>

namespace kinesta {
namespace {

std::size_t lineBreaks(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace

void YamlEvents::Deleter::operator()(yaml_parser_s* parser) const {
    yaml_parser_delete(parser);
    delete parser;
}

YamlEvents::YamlEvents(RecordingInput& input) : m_input(input) {
    auto parser = std::make_unique<yaml_parser_t>();
    // It fails only without memory.
    if (!yaml_parser_initialize(parser.get())) {
        fail("there is not enough memory");
        return;
    }
    m_parser.reset(parser.release());
    yaml_parser_set_input(m_parser.get(), &YamlEvents::read, this);
    yaml_parser_set_encoding(m_parser.get(), YAML_UTF8_ENCODING);
}

// The parser collects a whole value before it returns it: the limit of its length is kept here.
int YamlEvents::read(void* data, unsigned char* target, std::size_t capacity, std::size_t* size) {
    YamlEvents& self = *static_cast<YamlEvents*>(data);
    *size = self.m_input.read(reinterpret_cast<char*>(target), capacity);
    self.m_lastRead = {reinterpret_cast<const char*>(target), *size};
    self.m_bytesRead += *size;
    self.m_linesRead += lineBreaks(self.m_lastRead);
    self.m_readSincePiece += *size;
    self.m_isTooLong = self.m_readSincePiece > RecordingInput::kMaximumLine;
    return self.m_isTooLong || self.m_input.isBroken() ? 0 : 1;
}

YamlEvents::Kind YamlEvents::next() {
    if (m_kind == Kind::failed || (m_kind == Kind::end && m_hasStarted))
        return m_kind;
    m_hasStarted = true;
    for (;;) {
        yaml_event_t event;
        m_readSincePiece = 0;
        if (!yaml_parser_parse(m_parser.get(), &event)) {
            if (m_isTooLong)
                return fail("a value is longer than 1 MiB");
            if (m_input.isBroken())
                return fail("the input cannot be read");
            m_line = m_parser->error == YAML_READER_ERROR ? lineOfByte(m_parser->problem_offset)
                                                          : m_parser->problem_mark.line + 1;
            return fail("this is not valid YAML: " +
                        std::string(m_parser->problem ? m_parser->problem : "it ends too early"));
        }
        const yaml_event_type_t type = event.type;
        if (type == YAML_SCALAR_EVENT || type == YAML_MAPPING_START_EVENT || type == YAML_SEQUENCE_START_EVENT)
            m_line = event.start_mark.line + 1;
        m_text.clear();
        if (type == YAML_SCALAR_EVENT)
            m_text.assign(reinterpret_cast<const char*>(event.data.scalar.value), event.data.scalar.length);
        yaml_event_delete(&event);
        switch (type) {
            case YAML_SCALAR_EVENT:
                return m_kind = Kind::scalar;
            case YAML_MAPPING_START_EVENT:
            case YAML_SEQUENCE_START_EVENT:
                if (++m_depth > kMaximumDepth)
                    return fail("values are nested too deeply");
                return m_kind = type == YAML_MAPPING_START_EVENT ? Kind::beginMapping : Kind::beginSequence;
            case YAML_MAPPING_END_EVENT:
            case YAML_SEQUENCE_END_EVENT:
                --m_depth;
                return m_kind = type == YAML_MAPPING_END_EVENT ? Kind::endMapping : Kind::endSequence;
            case YAML_ALIAS_EVENT:
                return fail("a value refers to another one");
            case YAML_STREAM_END_EVENT:
            case YAML_DOCUMENT_END_EVENT:
                return m_kind = Kind::end;
            default:
                break;
        }
    }
}

// The parser gives no line for bytes that are not UTF-8. It finds them right after it has read them.
std::size_t YamlEvents::lineOfByte(std::size_t offset) const {
    const std::size_t bytesFrom = std::min(m_bytesRead - std::min(offset, m_bytesRead), m_lastRead.size());
    return m_linesRead - lineBreaks(m_lastRead.substr(m_lastRead.size() - bytesFrom)) + 1;
}

bool YamlEvents::skipValue() {
    const int depth = m_depth;
    if (m_kind == Kind::beginMapping || m_kind == Kind::beginSequence)
        while (m_depth >= depth)
            if (next() == Kind::failed || m_kind == Kind::end)
                return false;
    return true;
}

YamlEvents::Kind YamlEvents::fail(std::string problem) {
    m_problem = std::move(problem);
    return m_kind = Kind::failed;
}

}  // namespace kinesta
