// Turns bytes into kernel events of a pad, and checks the frames and buttons that the assembler makes of them.

#include <fuzzer/FuzzedDataProvider.h>
#include <cstddef>
#include <cstdint>

#include "input/ContactIdSet.h"
#include "input/evdev/EvdevFrameAssembler.h"
#include "require.h"

using namespace kinesta;

namespace {

// The codes that the assembler knows, so that most events have an effect.
constexpr std::uint16_t kKnownCodes[] = {0x00,  0x01,  0x02,  0x03,  0x18,  0x2f,  0x30,  0x35,  0x36, 0x39,
                                         0x110, 0x111, 0x145, 0x148, 0x14a, 0x14d, 0x14e, 0x14f, 0x3f};

struct Checker {
    void check(const PadEvent& event) {
        if (const auto* pointer = std::get_if<PadButton>(&event.content)) {
            buttonsDown += *pointer == PadButton::down ? 1 : -1;
            require(buttonsDown >= 0 && buttonsDown <= 2);
            return;
        }
        const auto* frame = std::get_if<PadFrame>(&event.content);
        require(frame && (hadFingers || !frame->samples.empty()));
        hadFingers = !frame->samples.empty();
        require(ContactIdSet(frame->samples).size() == frame->samples.size());
        for (const auto& [id, place] : frame->samples)
            require(id != -1 && place.x >= 0 && place.x <= 1 && place.y >= 0 && place.y <= 1);
    }

    bool hadFingers = false;
    int buttonsDown = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    EvdevTouchpad touchpad;
    touchpad.slotCount = input.ConsumeBool() ? input.ConsumeIntegralInRange(-1, 6) : input.ConsumeIntegral<int>();
    for (EvdevAxisRange* range : {&touchpad.x, &touchpad.y})
        *range = {input.ConsumeIntegral<std::int32_t>(), input.ConsumeIntegral<std::int32_t>()};
    EvdevFrameAssembler assembler(touchpad);
    Checker checker;
    Seconds time = 0;
    while (input.remaining_bytes() > 0) {
        time += 1;
        EvdevEvent event{.time = time};
        event.type = input.ConsumeIntegralInRange<std::uint16_t>(0, 4);
        event.code = input.PickValueInArray(kKnownCodes);
        event.value = input.ConsumeBool() ? input.ConsumeIntegralInRange<std::int32_t>(-2, 9)
                                          : input.ConsumeIntegral<std::int32_t>();
        assembler.process(event, [&](const PadEvent& made) {
            require(made.time == time);
            checker.check(made);
        });
    }
    return 0;
}
