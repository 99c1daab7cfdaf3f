#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace kinesta {

/// One case of an enumeration that has a persisted form.
template <typename E>
struct EnumRow {
    E value;
    std::string_view rawValue;
    std::string_view title;
};

/// The cases of `E` in declaration order, case 0 first and without gaps. Each enumeration that is stored or shown
/// defines its own.
template <typename E>
std::span<const EnumRow<E>> enumTable();

/// The persisted string of a case; it never changes between versions.
template <typename E>
std::string_view rawValue(E value) {
    return enumTable<E>()[static_cast<std::size_t>(value)].rawValue;
}

/// The text that a person reads for a case.
template <typename E>
std::string_view title(E value) {
    return enumTable<E>()[static_cast<std::size_t>(value)].title;
}

/// The case with this persisted string, or nothing.
template <typename E>
std::optional<E> fromRawValue(std::string_view raw) {
    for (const auto& row : enumTable<E>())
        if (row.rawValue == raw)
            return row.value;
    return std::nullopt;
}

}  // namespace kinesta
