#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rules/GestureRule.h"

namespace kinesta {

/// One value of a JSON text as it is met. Its text, if any, may be taken.
struct JsonValue {
    enum class Type { null, boolean, integer, otherNumber, text, list, object };

    Type type = Type::null;
    bool boolean = false;
    std::int64_t integer = 0;
    std::string* text = nullptr;
    std::string_view literal = {};  // of `otherNumber`: how it is written
};

/// `text` in quotes for a message: escaped, so that it stays one line and commands no terminal, and not too long.
std::string inQuotes(std::string_view text);

/// The value as a message names it.
std::string describe(const JsonValue& value);

enum class Requirement { required, optional };

/// One key of a stored record.
template <typename Record>
struct JsonField {
    std::string_view key;
    Requirement requirement;
    /// What the value should be; completes "which is not …" and "expected …".
    std::string_view meaning;
    /// Stores the value; false if it is none that the field can hold.
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
