#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace kinesta {

/// One case of an enumeration with its persisted string and the text shown to the user.
template <typename E>
struct EnumRow {
    E value;
    std::string_view rawValue;
    std::string_view title;
};

/// The cases of `E` in declaration order, case 0 first and without gaps. Each stored or shown enumeration defines its
/// own table.
template <typename E>
std::span<const EnumRow<E>> enumTable();

/// Every case of `E`, in declaration order.
template <typename E>
std::vector<E> allCases() {
    std::vector<E> cases;
    for (const auto& row : enumTable<E>())
        cases.push_back(row.value);
    return cases;
}

/// The persisted string of a case. Never changes between versions.
template <typename E>
std::string_view rawValue(E value) {
    return enumTable<E>()[static_cast<std::size_t>(value)].rawValue;
}

/// The text shown to the user for a case.
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
