#include "support/Translation.h"

#include <algorithm>
#include <utility>

namespace kinesta {
namespace {

// Code points for private use. Texts of people may have them, too: then nothing but the look of that text suffers.
constexpr std::string_view kBegin = "\uE000";
constexpr std::string_view kNext = "\uE001";
constexpr std::string_view kEnd = "\uE002";
constexpr std::string_view kPercent = "\uE003";

std::function<std::string(std::string_view)>& stored() {
    static std::function<std::string(std::string_view)> function;
    return function;
}

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    for (std::size_t i = text.find(what); i != std::string::npos; i = text.find(what, i + by.size()))
        text.replace(i, what.size(), by);
    return text;
}

std::string filled(std::string_view pattern, const std::vector<std::string>& arguments) {
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

/// The pattern, then its placeholders, which translated() fills in.
std::string marked(std::string_view english) {
    std::string text = std::string(kBegin) + replaced(std::string(english), "%", kPercent);
    for (char digit = '1'; digit <= '9' && english.find(std::string("%") + digit) != std::string_view::npos; ++digit)
        text.append(kNext).append("%") += digit;
    return text.append(kEnd);
}

/// The text up to one of the marks that end it, which stays in `rest`.
std::string unmarkedPart(std::string_view& rest, MarkedLanguage language, bool isInside);

/// What follows kBegin.
std::string unmarkedMessage(std::string_view& rest, MarkedLanguage language) {
    std::vector<std::string> parts{unmarkedPart(rest, language, true)};
    while (rest.starts_with(kNext)) {
        rest.remove_prefix(kNext.size());
        parts.push_back(unmarkedPart(rest, language, true));
    }
    rest.remove_prefix(std::min(kEnd.size(), rest.size()));
    const std::string pattern = replaced(std::exchange(parts.front(), {}), kPercent, "%");
    parts.erase(parts.begin());
    return language == MarkedLanguage::english ? filled(pattern, parts) : translated(pattern, parts);
}

std::string unmarkedPart(std::string_view& rest, MarkedLanguage language, bool isInside) {
    std::string text;
    while (!rest.empty() && !(isInside && (rest.starts_with(kNext) || rest.starts_with(kEnd)))) {
        if (rest.starts_with(kBegin)) {
            rest.remove_prefix(kBegin.size());
            text += unmarkedMessage(rest, language);
        } else {
            text += rest.front();
            rest.remove_prefix(1);
        }
    }
    return text;
}

}  // namespace

void setTranslator(std::function<std::string(std::string_view english)> translator) {
    stored() = std::move(translator);
}

std::string translated(std::string_view english) {
    return stored() && !english.empty() ? stored()(english) : std::string(english);
}

std::string translated(std::string_view english, const std::vector<std::string>& arguments) {
    return filled(translated(english), arguments);
}

void markTexts() { setTranslator(marked); }

std::string unmarked(std::string_view text, MarkedLanguage language) { return unmarkedPart(text, language, false); }

}  // namespace kinesta
