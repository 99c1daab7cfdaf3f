// Feeds contact frames to a TouchFrameProcessor, prints how many, and fails if it allocates memory after the first
// tenth of them. scripts/count-instructions runs it under callgrind.

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include "FrameStreams.h"
#include "recognition/TouchFrameProcessor.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

int main(int argc, char** argv) {
    using namespace kinesta;
    const std::string_view kind = argc == 3 ? argv[1] : "";
    const int fingers = argc == 3 ? std::atoi(argv[2]) : 0;
    if ((kind != "taps" && kind != "moves" && kind != "drawings") || fingers < 1 || fingers > 5) {
        std::fputs("usage: process_instructions taps|moves|drawings FINGERS\n", stderr);
        return 2;
    }
    const auto frames = kind == "taps" ? taps(125, fingers) : kind == "moves" ? moves(10, fingers) : drawings(10);
    const std::size_t warmUp = frames.size() / 10;

    TouchFrameProcessor processor;
    processor.setCornerPalmRejection({.isEnabled = kind != "drawings"});
    std::size_t recognized = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        if (i == warmUp)
            allocations = 0;
        const TrackpadContactFrame& frame = frames[i];
        recognized += processor.process(frame.samples, frame.timestamp, frame.timestamp).isEmpty() ? 0U : 1U;
    }
    std::printf("%zu frames, %zu with a result, %zu allocations\n", frames.size(), recognized, allocations);
    return allocations == 0 ? 0 : 1;
}
