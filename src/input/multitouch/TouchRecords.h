#pragma once

#include <cstddef>

#include "input/TouchSample.h"

namespace kinesta {

/// Bytes from one record of the trackpad framework to the next.
inline constexpr std::size_t kTouchRecordSize = 96;

/// The touching contacts among `count` records of the trackpad framework, in their order. None if `records` is null.
TouchSamples touchingContacts(const void* records, std::size_t count);

}  // namespace kinesta
