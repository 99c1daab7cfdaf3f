#include "rules/Uuid.h"

#include <cstddef>
#include <random>

namespace kinesta {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kTextLength = 36;

bool isHyphenPlace(std::size_t index) { return index == 8 || index == 13 || index == 18 || index == 23; }

std::optional<std::uint8_t> digitValue(char c) {
    if (c >= 'a' && c <= 'f')
        c = static_cast<char>(c - 'a' + 'A');
    const std::size_t value = kDigits.find(c);
    if (value == std::string_view::npos)
        return std::nullopt;
    return static_cast<std::uint8_t>(value);
}

}  // namespace

Uuid Uuid::random() {
    Uuid uuid;
    std::random_device source;
    for (std::size_t i = 0; i < uuid.bytes.size(); i += 4) {
        const std::uint32_t word = source();
        for (std::size_t k = 0; k < 4; ++k)
            uuid.bytes[i + k] = static_cast<std::uint8_t>(word >> (8 * k));
    }
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);
    return uuid;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != kTextLength)
        return std::nullopt;
    Uuid uuid;
    std::size_t digits = 0;
    for (std::size_t i = 0; i < kTextLength; ++i) {
        if (isHyphenPlace(i)) {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const std::optional<std::uint8_t> digit = digitValue(text[i]);
        if (!digit)
            return std::nullopt;
        std::uint8_t& byte = uuid.bytes[digits++ / 2];
        byte = static_cast<std::uint8_t>(byte << 4 | *digit);
    }
    return uuid;
}

std::string Uuid::toString() const {
    std::string text;
    text.reserve(kTextLength);
    for (const std::uint8_t byte : bytes) {
        if (isHyphenPlace(text.size()))
            text += '-';
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0x0F];
    }
    return text;
}

}  // namespace kinesta
