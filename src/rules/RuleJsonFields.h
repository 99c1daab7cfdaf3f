#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rules/GestureRule.h"

namespace kinesta {

/// One value of a JSON text. The consumer may move from `text`.
struct JsonValue {
    enum class Type { null, boolean, integer, otherNumber, text, list, object };

    Type type = Type::null;
    bool boolean = false;
    std::int64_t integer = 0;
    std::string* text = nullptr;
    std::string_view literal = {};  // the notation of an `otherNumber`
};

/// `text` in quotes for a message: shortened, and escaped so that it has no line breaks or terminal sequences.
std::string inQuotes(std::string_view text);

/// The value in words for a message.
std::string describe(const JsonValue& value);

enum class Requirement { required, optional };

/// One key of a stored record.
template <typename Record>
struct JsonField {
    std::string_view key;
    Requirement requirement;
    /// The expected value, to be translated; completes "which is not …" and "expected …".
    std::string_view meaning;
    /// Stores the value. False if the field cannot hold it.
    bool (*assign)(Record& record, const JsonValue& value);
};

/// The keys of GestureRule and of GestureAction, at most 32 each.
template <typename Record>
std::span<const JsonField<Record>> jsonFields();

template <>
std::span<const JsonField<GestureRule>> jsonFields();
template <>
std::span<const JsonField<GestureAction>> jsonFields();

}  // namespace kinesta
