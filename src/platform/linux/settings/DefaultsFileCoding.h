#pragma once

#include <string>
#include <string_view>

#include "support/Result.h"
#include "support/StoredValue.h"

namespace kinesta {

/// The form of the settings file: a JSON object with one key a line, in the order of the keys. Booleans, integers,
/// finite reals and strings are JSON's own. What JSON cannot tell is an object with one member:
///
///     {"data":"text"}         data that is well-formed UTF-8
///     {"bytes":[0,255]}       other data
///     {"real":"nan"}          a real that is not finite: "nan", "inf" or "-inf"
///     {"stringBytes":[255]}   a string that is not well-formed UTF-8
///
/// Every other value is foreign: kept, read by no one. Every value reads back as it was written.
std::string encodeDefaults(const StoredValues& values);

/// Reads that form. The error tells what is wrong with `content`, to follow after a "because".
Result<StoredValues> decodeDefaults(std::string_view content);

}  // namespace kinesta
