#include "rules/RuleJsonFields.h"

#include <array>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/Json.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using Type = JsonValue::Type;

bool read(const JsonValue& value, bool& result) {
    result = value.boolean;
    return value.type == Type::boolean;
}

bool read(const JsonValue& value, std::int64_t& result) {
    result = value.integer;
    return value.type == Type::integer;
}

bool read(const JsonValue& value, std::uint16_t& result) {
    result = static_cast<std::uint16_t>(value.integer);
    return value.type == Type::integer && std::in_range<std::uint16_t>(value.integer);
}

bool read(const JsonValue& value, ShortcutModifiers& result) { return read(value, result.rawValue); }

bool read(const JsonValue& value, std::string& result) {
    if (value.type != Type::text)
        return false;
    result = std::move(*value.text);
    return true;
}

template <typename Name>
requires std::is_enum_v<Name> || std::is_same_v<Name, Uuid>
bool read(const JsonValue& value, Name& result) {
    if (value.type != Type::text)
        return false;
    std::optional<Name> named;
    if constexpr (std::is_enum_v<Name>)
        named = fromRawValue<Name>(*value.text);
    else
        named = Name::parse(*value.text);
    result = named.value_or(Name{});
    return named.has_value();
}

// Lists and objects arrive as events, so a single value is always wrong here.
bool read(const JsonValue&, std::vector<std::string>&) { return false; }
bool read(const JsonValue&, GestureAction&) { return false; }

template <typename T>
bool read(const JsonValue& value, std::optional<T>& result) {
    result.reset();
    return value.type == Type::null || read(value, result.emplace());
}

template <auto member, typename Record>
bool assignMember(Record& record, const JsonValue& value) {
    return read(value, record.*member);
}

constexpr std::string_view kText = TRANSLATABLE("text");
constexpr std::string_view kTruth = TRANSLATABLE("true or false");
constexpr std::string_view kInteger = TRANSLATABLE("a whole number of 64 bits");

constexpr Requirement kRequired = Requirement::required;
constexpr Requirement kOptional = Requirement::optional;

// Shortens long text for a message without splitting a character.
std::string shortened(std::string_view text) {
    constexpr std::size_t kLongest = 60;
    if (text.size() <= kLongest)
        return std::string(text);
    std::size_t end = kLongest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return std::string(text.substr(0, end)) + "…";
}

}  // namespace

template <>
std::span<const JsonField<GestureRule>> jsonFields() {
    static constexpr std::array<JsonField<GestureRule>, 10> kFields{{
        {"id", kRequired, TRANSLATABLE("a UUID"), assignMember<&GestureRule::id>},
        {"name", kRequired, kText, assignMember<&GestureRule::name>},
        {"isEnabled", kRequired, kTruth, assignMember<&GestureRule::isEnabled>},
        {"fingerCount", kOptional, kInteger, assignMember<&GestureRule::fingerCount>},
        {"gesture", kRequired, TRANSLATABLE("a gesture"), assignMember<&GestureRule::gesture>},
        {"edgeSlideSide", kOptional, TRANSLATABLE("left, right or both"), assignMember<&GestureRule::edgeSlideSide>},
        {"anchorCorner", kOptional, TRANSLATABLE("topLeft, topRight, bottomLeft or bottomRight"),
         assignMember<&GestureRule::anchorCorner>},
        {"drawPattern", kOptional, TRANSLATABLE("a pattern to draw"), assignMember<&GestureRule::drawPattern>},
        {"action", kRequired, TRANSLATABLE("an object"), assignMember<&GestureRule::action>},
        {"showsActionCue", kOptional, kTruth, assignMember<&GestureRule::showsActionCue>},
    }};
    return kFields;
}

template <>
std::span<const JsonField<GestureAction>> jsonFields() {
    static constexpr std::array<JsonField<GestureAction>, 7> kFields{{
        {"kind", kRequired, TRANSLATABLE("a kind of action"), assignMember<&GestureAction::kind>},
        {"keyCode", kOptional, TRANSLATABLE("a whole number from 0 to 65535"), assignMember<&GestureAction::keyCode>},
        {"modifiers", kRequired, kInteger, assignMember<&GestureAction::modifiers>},
        {"value", kRequired, kText, assignMember<&GestureAction::value>},
        {"applicationArguments", kOptional, TRANSLATABLE("a list of texts"),
         assignMember<&GestureAction::applicationArguments>},
        {"customCueLabel", kOptional, kText, assignMember<&GestureAction::customCueLabel>},
        {"shellCommandAcknowledged", kOptional, kTruth, assignMember<&GestureAction::shellCommandAcknowledged>},
    }};
    return kFields;
}

std::string inQuotes(std::string_view text) { return Json(shortened(text)).text(); }

std::string describe(const JsonValue& value) {
    switch (value.type) {
        case Type::null:
            return "null";
        case Type::boolean:
            return value.boolean ? "true" : "false";
        case Type::integer:
            return std::to_string(value.integer);
        case Type::otherNumber:
            return shortened(value.literal);
        case Type::text:
            return inQuotes(*value.text);
        case Type::list:
            return translated("a list");
        case Type::object:
            return translated("an object");
    }
    return {};
}

}  // namespace kinesta
