#include "actions/KeyboardLayoutResolver.h"

#include "actions/LetterCase.h"

namespace kinesta {

std::uint16_t KeyboardLayoutResolver::keyCode(std::string_view name, std::uint16_t fallback) const {
    if (characterCount(name) != 1)
        return fallback;
    const std::string wanted = lowerCasedLetters(name);
    const auto characters = m_layout.charactersWithoutModifiers();
    if (!characters)
        return fallback;
    for (std::size_t code = 0; code < characters->size(); ++code)
        if (!(*characters)[code].empty() && lowerCasedLetters((*characters)[code]) == wanted)
            return static_cast<std::uint16_t>(code);
    return fallback;
}

}  // namespace kinesta
