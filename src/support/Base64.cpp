#include "support/Base64.h"

#include <cstdint>

namespace kinesta {

std::optional<std::string> fromBase64(std::string_view text) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    if (text.size() % 4 != 0)
        return std::nullopt;
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char digit : text.substr(0, text.size() - padding)) {
        const std::size_t value = kDigits.find(digit);
        if (value == std::string_view::npos)
            return std::nullopt;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<char>(bits >> count & 0xff));
        }
    }
    // One text for each value: the bits beyond the last byte are 0.
    if ((bits & ((1U << count) - 1)) != 0)
        return std::nullopt;
    return bytes;
}

}  // namespace kinesta
