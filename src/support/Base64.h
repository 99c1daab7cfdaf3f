#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// The bytes of `text` in base64 (RFC 4648, section 4, with its padding); nothing if it is anything else.
std::optional<std::string> fromBase64(std::string_view text);

}  // namespace kinesta
