#pragma once

#include <string>

namespace kinesta {

/// The shortest decimal text that reads back as exactly `value`, whatever the locale: "0.1", "250", "1e-07". A finite
/// number's text is also a JSON number.
std::string numberText(double value);

/// Appends numberText(value) to `text`.
void appendNumber(std::string& text, double value);

}  // namespace kinesta
