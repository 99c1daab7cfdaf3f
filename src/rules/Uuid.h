#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// A universally unique identifier, written as 8-4-4-4-12 upper-case hexadecimal digits.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// A new random identifier (version 4, RFC 4122).
    static Uuid random();

    /// Parses the hyphenated form, in either case.
    static std::optional<Uuid> parse(std::string_view text);

    std::string toString() const;

    friend auto operator<=>(const Uuid&, const Uuid&) = default;
};

}  // namespace kinesta
