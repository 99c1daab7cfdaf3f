#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <variant>

namespace kinesta {

/// Bytes of any content, told from text.
struct StoredData {
    std::string bytes;

    friend bool operator==(const StoredData&, const StoredData&) = default;
};

/// A value of a form that this version does not know, kept as it was found, in the notation of its file.
struct ForeignValue {
    std::string text;

    friend bool operator==(const ForeignValue&, const ForeignValue&) = default;
};

/// One stored setting.
using StoredValue = std::variant<bool, std::int64_t, double, std::string, StoredData, ForeignValue>;

/// Settings by key.
using StoredValues = std::map<std::string, StoredValue, std::less<>>;

}  // namespace kinesta
