#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kinesta {

/// Marks a text in a table: it is shown through translated().
#define TRANSLATABLE(text) text

/// Gives the text of the person's language for an English one. The application sets it once, before anything is shown
/// and before it starts threads; without one, as in the command line, all texts stay English.
void setTranslator(std::function<std::string(std::string_view english)> translator);

/// A text in the person's language.
std::string translated(std::string_view english);

/// A text with %1, %2 … replaced by the arguments, which stay as they are.
std::string translated(std::string_view english, const std::vector<std::string>& arguments);

/// From now on translated() returns texts that carry their English and their arguments, for another program that shows
/// them.
void markTexts();

enum class MarkedLanguage { english, ofPerson };

/// The text that a program with marked texts has made, in English or in the person's language.
std::string unmarked(std::string_view text, MarkedLanguage language);

}  // namespace kinesta
