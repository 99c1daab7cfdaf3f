// Turns bytes into the touch records of the trackpad framework, frame after frame. The decoder must read nothing beside
// them and nothing but the known fields, and the recognizers must survive what comes out.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>

#include "input/multitouch/TouchRecords.h"
#include "recognition/TouchFrameProcessor.h"
#include "require.h"

using namespace kinesta;

namespace {

template <typename Value>
Value read(const std::uint8_t* bytes) {
    Value value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

/// The same for two numbers that are none.
bool isSame(double a, double b) { return a == b || (a != a && b != b); }

void check(std::span<const std::uint8_t> records, const TouchSamples& samples) {
    const TouchSample* next = samples.begin();
    for (; !records.empty(); records = records.subspan(kTouchRecordSize)) {
        const auto state = read<std::int32_t>(&records[20]);
        if (state != 3 && state != 4)
            continue;
        require(next != samples.end() && next->id == read<std::int32_t>(&records[16]) &&
                isSame(next->position.x, read<float>(&records[32])) &&
                isSame(next->position.y, read<float>(&records[36])));
        ++next;
    }
    require(next == samples.end());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TouchFrameProcessor processor;
    Seconds time = 0;
    for (std::span<const std::uint8_t> rest(data, size); !rest.empty();) {
        const std::size_t wanted = rest.front() % 32;
        rest = rest.subspan(1);
        const std::size_t count = std::min(wanted, rest.size() / kTouchRecordSize);
        // A copy of its own size, not aligned for any field: reading beside it is noticed.
        const auto records = rest.first(count * kTouchRecordSize);
        const auto copy = std::make_unique<std::uint8_t[]>(records.size() + 1);
        std::copy(records.begin(), records.end(), copy.get() + 1);
        const TouchSamples samples = touchingContacts(copy.get() + 1, count);
        check(records, samples);
        processor.process(samples, time, time);
        time += 0.05;
        rest = rest.subspan(records.size());
    }
    return 0;
}
