#include "platform/linux/settings/DefaultsFileCoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

#include "support/Text.h"

namespace kinesta {
namespace {

using nlohmann::json;

// Far more than anyone nests, and few enough that writing, which recurses, cannot exhaust the stack.
constexpr int kMostNesting = 100;

constexpr std::array<std::pair<const char*, double>, 3> kNonFinite{{
    {"nan", std::numeric_limits<double>::quiet_NaN()},
    {"inf", std::numeric_limits<double>::infinity()},
    {"-inf", -std::numeric_limits<double>::infinity()},
}};

std::string text(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

json wrapped(const char* form, json content) {
    json object;
    object[form] = std::move(content);
    return object;
}

json byteArray(std::string_view bytes) {
    json array = json::array();
    for (const char byte : bytes)
        array.push_back(static_cast<unsigned char>(byte));
    return array;
}

std::optional<std::string> bytesOf(const json& array) {
    if (!array.is_array())
        return std::nullopt;
    std::string bytes;
    for (const json& byte : array) {
        if (!byte.is_number_unsigned() || byte.get<std::uint64_t>() > 255)
            return std::nullopt;
        bytes.push_back(static_cast<char>(byte.get<unsigned char>()));
    }
    return bytes;
}

struct Encoder {
    std::string operator()(bool value) const { return text(value); }
    std::string operator()(std::int64_t value) const { return text(value); }
    std::string operator()(double value) const {
        if (std::isfinite(value))
            return text(value);
        return text(wrapped("real", std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf"));
    }
    std::string operator()(const std::string& value) const {
        return isUtf8(value) ? text(value) : text(wrapped("stringBytes", byteArray(value)));
    }
    std::string operator()(const StoredData& value) const {
        return isUtf8(value.bytes) ? text(wrapped("data", value.bytes))
                                   : text(wrapped("bytes", byteArray(value.bytes)));
    }
    std::string operator()(const ForeignValue& value) const { return value.text; }
};

std::optional<StoredValue> decodeNonFinite(const json& name) {
    for (const auto& [known, value] : kNonFinite)
        if (name == known)
            return value;
    return std::nullopt;
}

/// Nothing for an object of ours with a content that is not.
std::optional<StoredValue> decodeObject(const json& object) {
    const auto member = object.begin();
    if (object.size() != 1)
        return ForeignValue{text(object)};
    if (member.key() == "data")
        return member->is_string() ? std::optional<StoredValue>(StoredData{member->get<std::string>()}) : std::nullopt;
    if (member.key() == "real")
        return decodeNonFinite(*member);
    if (member.key() != "bytes" && member.key() != "stringBytes")
        return ForeignValue{text(object)};
    auto bytes = bytesOf(*member);
    if (!bytes)
        return std::nullopt;
    if (member.key() == "bytes")
        return StoredData{std::move(*bytes)};
    return std::move(*bytes);
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
    // The parser would take it for the end and drop what follows. A crash of the system can leave a file full of them.
    if (content.find('\0') != std::string_view::npos)
        return Error{"it holds zero bytes"};
    bool isTooDeep = false;
    const auto limitDepth = [&](int depth, json::parse_event_t, const json&) {
        isTooDeep = isTooDeep || depth > kMostNesting;
        return !isTooDeep;
    };
    try {
        json document = json::parse(content, limitDepth);
        if (isTooDeep)
            return Error{"it is nested too deep"};
        if (!document.is_object())
            return Error{"it is not a JSON object"};
        return document;
    } catch (const json::parse_error& error) {
        const auto before = content.substr(0, error.byte);
        return Error{"line " + std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + " is not JSON"};
    } catch (const json::exception&) {
        return Error{"it holds a number that is too large"};
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
            return Error{"the value of \"" + key + "\" has no known form"};
        values.emplace(key, std::move(*decoded));
    }
    return values;
}

}  // namespace kinesta
