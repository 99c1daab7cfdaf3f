#include "platform/linux/settings/DefaultsFileCoding.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <variant>

#include "support/Translation.h"

namespace kinesta {
namespace {

using nlohmann::json;

// More than any file needs, and too few for writing, which recurses, to exhaust the stack.
constexpr int kMostNesting = 100;

constexpr const char* kData = "data";

std::string text(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

struct Encoder {
    std::string operator()(const StoredData& value) const { return text(json{{kData, value.bytes}}); }
    std::string operator()(const ForeignValue& value) const { return value.text; }
    std::string operator()(const auto& value) const { return text(value); }
};

/// Nothing if the member "data" is not text.
std::optional<StoredValue> decodeObject(const json& object) {
    const auto member = object.begin();
    if (object.size() != 1 || member.key() != kData)
        return ForeignValue{text(object)};
    return member->is_string() ? std::optional<StoredValue>(StoredData{member->get<std::string>()}) : std::nullopt;
}

std::optional<StoredValue> decodeValue(const json& value) {
    switch (value.type()) {
        case json::value_t::boolean:
            return value.get<bool>();
        case json::value_t::number_float:
            return value.get<double>();
        case json::value_t::number_unsigned:
            if (value.get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
                return ForeignValue{text(value)};
            return value.get<std::int64_t>();
        case json::value_t::number_integer:
            return value.get<std::int64_t>();
        case json::value_t::string:
            return value.get<std::string>();
        case json::value_t::object:
            return decodeObject(value);
        default:
            return ForeignValue{text(value)};
    }
}

Result<json> parse(std::string_view content) {
    // The parser stops at a zero byte and ignores the rest. A crash of the system can leave a file full of zero bytes.
    if (content.find('\0') != std::string_view::npos)
        return Error{translated("it holds zero bytes")};
    bool isTooDeep = false;
    const auto limitDepth = [&](int depth, json::parse_event_t, const json&) {
        isTooDeep = isTooDeep || depth > kMostNesting;
        return !isTooDeep;
    };
    try {
        json document = json::parse(content, limitDepth);
        if (isTooDeep)
            return Error{translated("it is nested too deep")};
        if (!document.is_object())
            return Error{translated("it is not a JSON object")};
        return document;
    } catch (const json::parse_error& error) {
        const auto before = content.substr(0, error.byte);
        return Error{
            translated("line %1 is not JSON", {std::to_string(1 + std::count(before.begin(), before.end(), '\n'))})};
    } catch (const json::exception&) {
        return Error{translated("it holds a number that is too large")};
    }
}

}  // namespace

std::string encodeDefaults(const StoredValues& values) {
    std::string content = "{";
    const char* separator = "\n  ";
    for (const auto& [key, value] : values) {
        content += separator;
        content += text(key) + ": ";
        content += std::visit(Encoder(), value);
        separator = ",\n  ";
    }
    content += "\n}\n";
    return content;
}

Result<StoredValues> decodeDefaults(std::string_view content) {
    const Result<json> document = parse(content);
    if (!document)
        return document.error();
    StoredValues values;
    for (const auto& [key, value] : document->items()) {
        auto decoded = decodeValue(value);
        if (!decoded)
            return Error{translated("the value of %1 has no known form", {"\"" + key + "\""})};
        values.emplace(key, std::move(*decoded));
    }
    return values;
}

}  // namespace kinesta
