#pragma once

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/GestureRule.h"
#include "rules/RuleJsonFields.h"
#include "support/Result.h"

namespace kinesta {

/// Builds a rule list from the events of the JSON parser, without a tree or recursion, so that deep nesting costs
/// almost nothing. Only for decodeRules().
class RuleListDecoder {
  public:
    /// `json` must outlive the decoder.
    explicit RuleListDecoder(std::string_view json) : m_json(json) {}

    /// Parses the text; called once.
    Result<std::vector<GestureRule>> decode();

    // The parser's events. Each returns whether to go on.
    bool null();
    bool boolean(bool value);
    bool number_integer(std::int64_t number);
    bool number_unsigned(std::uint64_t number);
    bool number_float(double number, const std::string& literal);
    bool string(std::string& text);
    bool binary(nlohmann::json::binary_t& bytes);
    bool start_object(std::size_t elements);
    bool key(const std::string& name);
    bool end_object();
    bool start_array(std::size_t elements);
    bool end_array();
    bool parse_error(std::size_t position, const std::string& lastToken, const nlohmann::json::exception& exception);

  private:
    enum class Level { document, list, rule, action, arguments };

    struct Problem {
        std::size_t offset;
        std::string text;  // continues "line N: " or, in a rule, "line N: rule K "Name": "
        bool isInRule;
    };

    /// What has been read of the current object.
    struct Object {
        std::size_t offset = 0;
        std::uint32_t seenFields = 0;  // bit set, by index in the field table
        std::optional<std::size_t> field;
    };

    bool accept(const JsonValue& value);
    template <typename Record>
    void assign(Record& record, const Object& object, const JsonValue& value);
    template <typename Record>
    void open(Object& object, std::string_view key);
    template <typename Record>
    void close(const Object& object);
    bool isAt(std::string_view key) const;
    void report(std::size_t offset, std::string text, bool isInRule);
    std::size_t offset() const;
    Error error() const;

    std::string_view m_json;
    const char* m_next = m_json.data();  // how far the parser has read
    std::vector<GestureRule> m_rules;
    Level m_level = Level::document;
    std::size_t m_skippedDepth = 0;  // open lists and objects below an ignored value
    Object m_rule;
    Object m_action;
    std::optional<Problem> m_problem;
};

}  // namespace kinesta
