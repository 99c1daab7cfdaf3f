#pragma once

#include <cstdint>

#include "support/InlineVector.h"
#include "support/Point.h"

namespace kinesta {

/// The identifier that a driver gives to one finger from its touch-down to its lift.
using ContactId = std::int32_t;

/// One finger touching the pad in one frame, as the driver reports it.
struct TouchSample {
    ContactId id = 0;
    Point position;

    friend bool operator==(const TouchSample&, const TouchSample&) = default;
};

/// Contacts that fit without the heap: more than two hands have.
inline constexpr std::size_t kInlineContacts = 16;

using TouchSamples = InlineVector<TouchSample, kInlineContacts>;

}  // namespace kinesta
