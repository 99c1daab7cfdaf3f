#include "support/Translation.h"

#include <utility>

namespace kinesta {
namespace {

std::function<std::string(std::string_view)>& stored() {
    static std::function<std::string(std::string_view)> function;
    return function;
}

}  // namespace

void setTranslator(std::function<std::string(std::string_view english)> translator) {
    stored() = std::move(translator);
}

std::string translated(std::string_view english) { return stored() ? stored()(english) : std::string(english); }

std::string translated(std::string_view english, const std::vector<std::string>& arguments) {
    const std::string pattern = translated(english);
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const auto digit =
            i + 1 < pattern.size() && pattern[i] == '%' ? static_cast<unsigned char>(pattern[i + 1]) : 0U;
        const std::size_t argument = digit - '1';
        if (digit >= '1' && digit <= '9' && argument < arguments.size()) {
            text += arguments[argument];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

}  // namespace kinesta
