#include "actions/LetterCase.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kinesta {
namespace {

// Capitals `first`…`last`, each `step` after the one before; the small letter is `offset` above its capital.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t offset;
};

constexpr std::array kCapitals{
    Capitals{U'A', U'Z', 1, 32},     Capitals{0x00C0, 0x00D6, 1, 32}, Capitals{0x00D8, 0x00DE, 1, 32},
    Capitals{0x0100, 0x012E, 2, 1},  Capitals{0x0132, 0x0136, 2, 1},  Capitals{0x0139, 0x0147, 2, 1},
    Capitals{0x014A, 0x0176, 2, 1},  Capitals{0x0179, 0x017D, 2, 1},  Capitals{0x0386, 0x0386, 1, 38},
    Capitals{0x0388, 0x038A, 1, 37}, Capitals{0x038C, 0x038C, 1, 64}, Capitals{0x038E, 0x038F, 1, 63},
    Capitals{0x0391, 0x03A1, 1, 32}, Capitals{0x03A3, 0x03AB, 1, 32}, Capitals{0x0400, 0x040F, 1, 80},
    Capitals{0x0410, 0x042F, 1, 32}, Capitals{0x0460, 0x0480, 2, 1},  Capitals{0x048A, 0x04BE, 2, 1},
    Capitals{0x04C0, 0x04C0, 1, 15}, Capitals{0x04C1, 0x04CD, 2, 1},  Capitals{0x04D0, 0x052E, 2, 1},
    Capitals{0x0531, 0x0556, 1, 48}, Capitals{0x1E00, 0x1E94, 2, 1},  Capitals{0x1EA0, 0x1EFE, 2, 1},
};

char32_t lowerCasedLetter(char32_t letter) {
    // The two capitals whose small letters lie below them.
    if (letter == 0x0178)
        return 0x00FF;
    if (letter == 0x1E9E)
        return 0x00DF;
    for (const Capitals& range : kCapitals)
        if (letter >= range.first && letter <= range.last && (letter - range.first) % range.step == 0)
            return letter + range.offset;
    return letter;
}

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

void appendEncoded(std::string& text, char32_t letter) {
    const auto trailing = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (letter < 0x80) {
        text += static_cast<char>(letter);
    } else if (letter < 0x800) {
        text += static_cast<char>(0xC0U | (letter >> 6U));
        text += trailing(letter);
    } else {
        text += static_cast<char>(0xE0U | (letter >> 12U));
        text += trailing(letter >> 6U);
        text += trailing(letter);
    }
}

struct DecodedLetter {
    char32_t letter = 0;
    std::size_t length = 1;
};

// The letter at the start of `text`, or, for anything that no capital of the table is written as (a longer or a broken
// sequence), letter 0 over one byte.
DecodedLetter decodedLetter(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80U)
        return {lead, 1};
    const std::size_t length = (lead & 0xE0U) == 0xC0U ? 2 : (lead & 0xF0U) == 0xE0U ? 3 : 1;
    if (length == 1 || text.size() < length)
        return {};
    char32_t letter = lead & (length == 2 ? 0x1FU : 0x0FU);
    for (std::size_t i = 1; i < length; ++i) {
        if (!isContinuation(text[i]))
            return {};
        letter = letter << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool isOverlong = letter < (length == 2 ? 0x80U : 0x800U);
    return isOverlong ? DecodedLetter{} : DecodedLetter{letter, length};
}

}  // namespace

std::string lowerCasedLetters(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto [letter, length] = decodedLetter(text);
        if (const char32_t small = lowerCasedLetter(letter); small != letter)
            appendEncoded(result, small);
        else
            result += text.substr(0, length);
        text.remove_prefix(length);
    }
    return result;
}

std::size_t characterCount(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isContinuation));
}

}  // namespace kinesta
