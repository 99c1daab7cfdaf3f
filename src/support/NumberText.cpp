#include "support/NumberText.h"

#include <array>
#include <charconv>

namespace kinesta {

std::string numberText(double value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

void appendNumber(std::string& text, double value) {
    std::array<char, 32> digits{};  // the longest, -1.7976931348623157e+308, takes 24
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    text.append(digits.data(), end);
}

}  // namespace kinesta
