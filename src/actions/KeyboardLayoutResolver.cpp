#include "actions/KeyboardLayoutResolver.h"

#include "support/Text.h"

namespace kinesta {

std::uint16_t KeyboardLayoutResolver::keyCode(std::string_view name, std::uint16_t fallback) const {
    if (name.size() != 1)
        return fallback;
    const auto characters = m_layout.charactersWithoutModifiers();
    if (!characters)
        return fallback;
    const std::string wanted = lowerCased(name);
    for (std::size_t code = 0; code < characters->size(); ++code)
        if (lowerCased((*characters)[code]) == wanted)
            return static_cast<std::uint16_t>(code);
    return fallback;
}

}  // namespace kinesta
