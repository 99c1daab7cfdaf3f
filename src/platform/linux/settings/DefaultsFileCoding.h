#pragma once

#include <string>
#include <string_view>

#include "support/Result.h"
#include "support/StoredValue.h"

namespace kinesta {

/// The form of the settings file: a JSON object with one key a line, in the order of the keys. Booleans, integers,
/// reals and strings are JSON's own; data is the object {"data":"text"}. All other values are foreign: they are kept
/// unchanged and never read.
///
/// Every setting is text or a finite number. Bytes that are not UTF-8 are written as U+FFFD, other reals as null.
std::string encodeDefaults(const StoredValues& values);

/// Decodes that form. The error says what is wrong with `content`, as the rest of a sentence.
Result<StoredValues> decodeDefaults(std::string_view content);

}  // namespace kinesta
