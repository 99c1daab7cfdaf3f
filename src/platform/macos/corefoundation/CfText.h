#pragma once

#include <optional>
#include <string>

#include "platform/macos/corefoundation/CfReference.h"

namespace kinesta {

/// Null if `text` is not UTF-8 or memory is short.
CfReference<CFStringRef> cfString(const std::string& text);

/// The text as UTF-8. Nothing if it has none, as with half of a surrogate pair.
std::optional<std::string> utf8Text(CFStringRef string);

}  // namespace kinesta
