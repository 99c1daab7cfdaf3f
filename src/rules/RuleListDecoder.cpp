#include "rules/RuleListDecoder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <type_traits>
#include <utility>

#include "rules/GestureRuleCoding.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using Type = JsonValue::Type;

// Feeds the parser and records how far it has read, because its events carry no position.
class TrackingIterator {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    TrackingIterator(const char* place, const char** next) : m_place(place), m_next(next) {}

    const char& operator*() const { return *m_place; }
    TrackingIterator& operator++() {
        *m_next = ++m_place;
        return *this;
    }
    void operator++(int) { ++*this; }
    friend bool operator==(const TrackingIterator& a, const TrackingIterator& b) { return a.m_place == b.m_place; }

  private:
    const char* m_place;
    const char** m_next;
};

// The key with the path to it.
template <typename Record>
std::string path(const JsonField<Record>& field) {
    const std::string_view prefix = std::is_same_v<Record, GestureAction> ? "action." : "";
    return std::string("\"").append(prefix).append(field.key).append("\"");
}

}  // namespace

Result<std::vector<GestureRule>> RuleListDecoder::decode() {
    // The parser would take it as the end of the text.
    if (const std::size_t zero = m_json.find('\0'); zero != std::string_view::npos) {
        report(zero, translated("a NUL byte, which JSON text cannot hold"), false);
        return error();
    }
    const char* const end = m_json.data() + m_json.size();
    if (!nlohmann::json::sax_parse(TrackingIterator(m_json.data(), &m_next), TrackingIterator(end, &m_next), this))
        return error();
    return std::move(m_rules);
}

bool RuleListDecoder::null() { return accept({}); }

bool RuleListDecoder::boolean(bool value) { return accept({.type = Type::boolean, .boolean = value}); }

bool RuleListDecoder::number_integer(std::int64_t number) { return accept({.type = Type::integer, .integer = number}); }

bool RuleListDecoder::number_unsigned(std::uint64_t number) {
    if (std::in_range<std::int64_t>(number))
        return number_integer(static_cast<std::int64_t>(number));
    const std::string literal = std::to_string(number);
    return accept({.type = Type::otherNumber, .literal = literal});
}

bool RuleListDecoder::number_float(double number, const std::string& literal) {
    // Integers of more than 64 bits arrive here too, rounded, and must not be taken as integers.
    const bool isFraction = literal.find_first_of(".eE") != std::string::npos;
    if (isFraction && std::trunc(number) == number && number >= -0x1p63 && number < 0x1p63)
        return number_integer(static_cast<std::int64_t>(number));
    return accept({.type = Type::otherNumber, .literal = literal});
}

bool RuleListDecoder::string(std::string& text) { return accept({.type = Type::text, .text = &text}); }

bool RuleListDecoder::binary(nlohmann::json::binary_t&) { return false; }  // does not occur in text

bool RuleListDecoder::start_object(std::size_t) {
    if (m_skippedDepth == 0 && m_level == Level::list) {
        m_rules.emplace_back();
        m_rule = {.offset = offset(), .seenFields = 0, .field = {}};
        m_level = Level::rule;
        return true;
    }
    if (m_skippedDepth == 0 && m_level == Level::rule && isAt("action")) {
        m_rules.back().action = {};
        m_action = {.offset = offset(), .seenFields = 0, .field = {}};
        m_level = Level::action;
        return true;
    }
    const bool isGoingOn = accept({.type = Type::object});
    ++m_skippedDepth;
    return isGoingOn;
}

bool RuleListDecoder::key(const std::string& name) {
    if (m_skippedDepth == 0 && m_level == Level::rule)
        open<GestureRule>(m_rule, name);
    else if (m_skippedDepth == 0)
        open<GestureAction>(m_action, name);
    return true;
}

bool RuleListDecoder::end_object() {
    if (m_skippedDepth > 0) {
        --m_skippedDepth;
        return true;
    }
    if (m_level == Level::action) {
        close<GestureAction>(m_action);
        m_level = Level::rule;
        return true;
    }
    close<GestureRule>(m_rule);
    m_level = Level::list;
    return !m_problem;
}

bool RuleListDecoder::start_array(std::size_t) {
    if (m_skippedDepth == 0 && m_level == Level::document) {
        m_level = Level::list;
        return true;
    }
    if (m_skippedDepth == 0 && m_level == Level::action && isAt("applicationArguments")) {
        m_rules.back().action.applicationArguments.emplace();
        m_level = Level::arguments;
        return true;
    }
    const bool isGoingOn = accept({.type = Type::list});
    ++m_skippedDepth;
    return isGoingOn;
}

bool RuleListDecoder::end_array() {
    if (m_skippedDepth > 0)
        --m_skippedDepth;
    else
        m_level = m_level == Level::arguments ? Level::action : Level::document;
    return true;
}

bool RuleListDecoder::parse_error(std::size_t position, const std::string&,
                                  const nlohmann::json::exception& exception) {
    const std::size_t place = std::min(position - std::min<std::size_t>(position, 1), m_json.size());
    const std::size_t lineStart = m_json.substr(0, place).rfind('\n') + 1;  // npos + 1 is 0
    const auto isCharacterStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto column = 1 + std::count_if(m_json.begin() + static_cast<std::ptrdiff_t>(lineStart),
                                          m_json.begin() + static_cast<std::ptrdiff_t>(place), isCharacterStart);
    constexpr int kNumberOverflow = 406;
    const std::string at = std::to_string(column);
    if (exception.id == kNumberOverflow)
        report(place, translated("column %1 has a number that is too large", {at}), false);
    else if (place == m_json.size() || position > m_json.size())
        report(place, translated("the JSON text ends too early, at column %1", {at}), false);
    else
        report(place, translated("not valid JSON from column %1 on", {at}), false);
    return false;
}

bool RuleListDecoder::accept(const JsonValue& value) {
    if (m_skippedDepth > 0)
        return true;
    switch (m_level) {
        case Level::document:
            report(offset(), translated("the text is %1, which is not a list of rules", {describe(value)}), false);
            return false;
        case Level::list:
            report(offset(),
                   translated("rule %1 is %2, which is not an object",
                              {std::to_string(m_rules.size() + 1), describe(value)}),
                   false);
            return false;
        case Level::rule:
            assign(m_rules.back(), m_rule, value);
            return true;
        case Level::action:
            assign(m_rules.back().action, m_action, value);
            return true;
        case Level::arguments: {
            auto& arguments = *m_rules.back().action.applicationArguments;
            std::string& argument = arguments.emplace_back();
            if (value.type == Type::text)
                argument = std::move(*value.text);
            else
                report(
                    offset(),
                    translated("entry %1 of %2 is %3, which is not text",
                               {std::to_string(arguments.size()), "\"action.applicationArguments\"", describe(value)}),
                    true);
            return true;
        }
    }
    return true;
}

template <typename Record>
void RuleListDecoder::assign(Record& record, const Object& object, const JsonValue& value) {
    if (!object.field)
        return;
    const JsonField<Record>& field = jsonFields<Record>()[*object.field];
    if (!field.assign(record, value))
        report(offset(),
               translated("%1 is %2, which is not %3", {path(field), describe(value), translated(field.meaning)}),
               true);
}

// Remembers the key of the next value. Ignores unknown keys.
template <typename Record>
void RuleListDecoder::open(Object& object, std::string_view key) {
    object.field.reset();
    for (std::size_t i = 0; i < jsonFields<Record>().size(); ++i) {
        if (jsonFields<Record>()[i].key == key) {
            object.field = i;
            object.seenFields |= std::uint32_t{1} << i;
        }
    }
}

template <typename Record>
void RuleListDecoder::close(const Object& object) {
    for (std::size_t i = 0; i < jsonFields<Record>().size(); ++i) {
        const JsonField<Record>& field = jsonFields<Record>()[i];
        if (field.requirement == Requirement::required && (object.seenFields >> i & 1U) == 0)
            report(object.offset, translated("%1 is missing; expected %2", {path(field), translated(field.meaning)}),
                   true);
    }
}

bool RuleListDecoder::isAt(std::string_view key) const {
    if (m_level == Level::rule)
        return m_rule.field && jsonFields<GestureRule>()[*m_rule.field].key == key;
    return m_action.field && jsonFields<GestureAction>()[*m_action.field].key == key;
}

// Keeps the first problem. Reading continues to the end of the rule, because its name may come later.
void RuleListDecoder::report(std::size_t offset, std::string text, bool isInRule) {
    if (!m_problem)
        m_problem = Problem{offset, std::move(text), isInRule};
}

// The offset of the last character read: inside the current token, or right after it if it is a number.
std::size_t RuleListDecoder::offset() const {
    const auto read = static_cast<std::size_t>(m_next - m_json.data());
    return read - std::min<std::size_t>(read, 1);
}

Error RuleListDecoder::error() const {
    const std::string_view before = m_json.substr(0, m_problem->offset);
    const std::string line = std::to_string(1 + std::count(before.begin(), before.end(), '\n'));
    if (!m_problem->isInRule)
        return {translated("line %1: %2", {line, m_problem->text})};
    const std::string number = std::to_string(m_rules.size());
    if (m_rules.back().name.empty())
        return {translated("line %1: rule %2: %3", {line, number, m_problem->text})};
    return {translated("line %1: rule %2 %3: %4", {line, number, inQuotes(m_rules.back().name), m_problem->text})};
}

// Here rather than beside encodeRules(), so that the parser is compiled once.
Result<std::vector<GestureRule>> decodeRules(std::string_view json) { return RuleListDecoder(json).decode(); }

}  // namespace kinesta
