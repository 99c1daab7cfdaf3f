#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <variant>

namespace kinesta {

/// Arbitrary bytes, as opposed to text.
struct StoredData {
    std::string bytes;

    friend bool operator==(const StoredData&, const StoredData&) = default;
};

/// A value of a form unknown to this version, kept in the notation of its file.
struct ForeignValue {
    std::string text;

    friend bool operator==(const ForeignValue&, const ForeignValue&) = default;
};

/// One stored setting.
using StoredValue = std::variant<bool, std::int64_t, double, std::string, StoredData, ForeignValue>;

/// Settings by key.
using StoredValues = std::map<std::string, StoredValue, std::less<>>;

}  // namespace kinesta
