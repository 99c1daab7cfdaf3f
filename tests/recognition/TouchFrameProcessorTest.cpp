#include "recognition/TouchFrameProcessor.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

TouchSamples fingers(int count, Point first = {0.4, 0.5}) {
    TouchSamples samples;
    for (int i = 0; i < count; ++i)
        samples.push_back({i, {first.x + 0.05 * i, first.y}});
    return samples;
}

FrameRecognition tap(TouchFrameProcessor& processor, Seconds lift, int count = 2) {
    processor.process(fingers(count), lift - 0.1, lift - 0.1);
    return processor.process({}, lift, lift);
}

TEST(TouchFrameProcessor, WhatIsOfAnOlderGenerationIsVoid) {
    const auto change = [](TouchFrameProcessor& processor) { processor.setCornerPalmRejection({.isEnabled = true}); };
    const auto reset = [](TouchFrameProcessor& processor) { processor.reset(); };
    for (const std::function<void(TouchFrameProcessor&)>& renew : {std::function(change), std::function(reset)}) {
        TouchFrameProcessor processor;
        const FrameRecognition before = tap(processor, 1);
        renew(processor);
        EXPECT_FALSE(processor.isCurrent(before.generation));
        const FrameRecognition now = tap(processor, 1.1);
        EXPECT_EQ(text(now.tapSequence), "2 fingers x1") << "nothing is left of the tap before";
        EXPECT_TRUE(processor.isCurrent(now.generation));
        EXPECT_EQ(processor.finalize(*now.tapSequence, before.generation), std::nullopt) << "though it is the same";
        EXPECT_EQ(processor.finalize(*now.tapSequence, now.generation), (TapSequence{2, 1}));
    }
}

TEST(TouchFrameProcessor, BearsWhateverADriverMaySend) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    TouchFrameProcessor processor;
    processor.setCornerPalmRejection({.isEnabled = true});
    TouchSamples thousand;
    for (int i = 0; i < 1000; ++i)
        thousand.push_back({std::numeric_limits<ContactId>::max() - i, {0.5, 0.3 + 0.0001 * i}});
    processor.process(thousand, 1, 1);
    EXPECT_EQ(text(processor.process({}, 1.1, 1.1).tapSequence), "1000 fingers x1");
    for (int frame = 0; frame < 2000; ++frame) {  // every id is new, no finger ever lifts, the time goes back
        for (TouchSample& sample : thousand)
            sample.id = static_cast<ContactId>(static_cast<std::uint32_t>(sample.id) + 1000U);
        processor.process(frame % 100 == 0 ? thousand : fingers(1), 1 - 0.1 * frame, kNaN);
    }
    EXPECT_TRUE(processor.process({}, -1e300, 0).isEmpty());
    processor.process(TouchSamples{{1, {kNaN, 1e308}}, {2, {-1e308, kNaN}}}, 2, 2);
    EXPECT_EQ(text(processor.process({}, 2.1, 2.1).tapSequence), "nothing") << "in a corner, as far as can be told";
    EXPECT_EQ(text(tap(processor, 3).tapSequence), "2 fingers x1") << "all is well again";
}

}  // namespace
}  // namespace kinesta::testing
