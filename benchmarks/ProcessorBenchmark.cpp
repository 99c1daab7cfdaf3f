#include <benchmark/benchmark.h>

#include "FrameStreams.h"
#include "recognition/TouchFrameProcessor.h"

namespace kinesta {
namespace {

/// Each iteration is one frame.
void runFrames(benchmark::State& state, const std::vector<TrackpadContactFrame>& frames) {
    TouchFrameProcessor processor;
    processor.setCornerPalmRejection({.isEnabled = true});
    std::size_t next = 0;
    for (auto _ : state) {
        const TrackpadContactFrame& frame = frames[next];
        benchmark::DoNotOptimize(processor.process(frame.samples, frame.timestamp, frame.timestamp));
        next = next + 1 == frames.size() ? 0 : next + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

void tapFrames(benchmark::State& state) { runFrames(state, taps(125, static_cast<int>(state.range(0)))); }
void moveFrames(benchmark::State& state) { runFrames(state, moves(10, static_cast<int>(state.range(0)))); }

BENCHMARK(tapFrames)->Arg(2)->Arg(3)->Arg(5);
BENCHMARK(moveFrames)->Arg(2)->Arg(3)->Arg(5);

}  // namespace
}  // namespace kinesta
