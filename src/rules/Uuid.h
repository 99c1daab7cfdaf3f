#pragma once

#include <array>
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

    friend bool operator==(const Uuid&, const Uuid&) = default;
    friend bool operator<(const Uuid& a, const Uuid& b) { return a.bytes < b.bytes; }  // libc++ 16: no <=> of arrays
};

}  // namespace kinesta
