#include "input/multitouch/TouchRecords.h"

#include <array>
#include <bit>
#include <cstdint>

namespace kinesta {
namespace {

constexpr std::size_t kIdentifier = 16;
constexpr std::size_t kState = 20;
constexpr std::size_t kX = 32;
constexpr std::size_t kY = 36;

/// The states of a finger that touches the pad.
constexpr std::array<std::int32_t, 2> kTouching{3, 4};

/// The four little-endian bytes at `bytes`, which need not be aligned.
template <typename Value>
Value valueAt(const unsigned char* bytes) {
    std::uint32_t bits = 0;
    for (unsigned i = 0; i < sizeof bits; ++i)
        bits |= std::uint32_t{bytes[i]} << (8 * i);
    return std::bit_cast<Value>(bits);
}

bool isTouching(std::int32_t state) { return state == kTouching[0] || state == kTouching[1]; }

}  // namespace

TouchSamples touchingContacts(const void* records, std::size_t count) {
    TouchSamples samples;
    if (records == nullptr)
        return samples;
    const auto* record = static_cast<const unsigned char*>(records);
    for (std::size_t i = 0; i < count; ++i, record += kTouchRecordSize)
        if (isTouching(valueAt<std::int32_t>(record + kState)))
            samples.push_back({valueAt<std::int32_t>(record + kIdentifier),
                               {valueAt<float>(record + kX), valueAt<float>(record + kY)}});
    return samples;
}

}  // namespace kinesta
