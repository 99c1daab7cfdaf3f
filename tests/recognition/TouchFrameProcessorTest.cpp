#include "recognition/TouchFrameProcessor.h"

#include <gtest/gtest.h>

#include <limits>

namespace kinesta::testing {
namespace {

constexpr TapSequence kOneTap{2, 1};

TouchSamples fingers(int count) {
    TouchSamples samples;
    for (int i = 0; i < count; ++i)
        samples.push_back({i, {0.4 + 0.05 * i, 0.5}});
    return samples;
}

/// Two fingers, of which so many stay.
FrameRecognition tap(TouchFrameProcessor& processor, Seconds lift, int resting = 0) {
    processor.process(fingers(2), lift - 0.1, lift - 0.1);
    return processor.process(fingers(resting), lift, lift);
}

TouchFrameProcessor::CompletedClick click(TouchFrameProcessor& processor, Uptime release) {
    processor.process(fingers(2), release - 0.1, release - 0.1);
    processor.beginPhysicalClick(release - 0.1);
    return processor.completePhysicalClick(release).value();
}

/// A processor gives a sequence once, and only for the very sequence and its generation.
template <typename Sequence>
void expectFinalizedOnce(TouchFrameProcessor& processor,
                         std::optional<Sequence> (TouchFrameProcessor::*finalize)(const Sequence&, std::uint64_t),
                         const Sequence& sequence, std::uint64_t generation, const std::vector<Sequence>& others = {}) {
    EXPECT_EQ((processor.*finalize)(sequence, generation - 1), std::nullopt) << "an older generation";
    for (const Sequence& other : others)
        EXPECT_EQ((processor.*finalize)(other, generation), std::nullopt);
    EXPECT_EQ((processor.*finalize)(sequence, generation), sequence);
    EXPECT_EQ((processor.*finalize)(sequence, generation), std::nullopt) << "a second time";
}

TEST(TouchFrameProcessor, CountsToThreeAndFinalizesOnlyTheExpectedSequence) {
    TouchFrameProcessor taps, tipTaps, clicks;
    tipTaps.process(fingers(1), 0.5, 0.5);
    std::string counts;
    for (const Seconds time : {1.0, 1.2, 1.4, 1.6})
        counts += std::to_string(tap(taps, time).tapSequence->taps) +
                  std::to_string(tap(tipTaps, time, 1).tipTapSequence->taps) +
                  std::to_string(click(clicks, time).sequence.clicks) + " ";
    EXPECT_EQ(counts, "111 222 333 333 ");

    constexpr auto left = TipTapDirection::left, right = TipTapDirection::right;
    constexpr auto soft = PhysicalClickPressure::soft;
    expectFinalizedOnce(taps, &TouchFrameProcessor::finalize, {2, 3}, 0, {{2, 2}, {3, 3}});
    expectFinalizedOnce(tipTaps, &TouchFrameProcessor::finalizeTipTap, {0, right, 3}, 0,
                        {{0, right, 2}, {0, left, 3}, {1, right, 3}});
    expectFinalizedOnce(clicks, &TouchFrameProcessor::finalizePhysicalClick, {2, 3, soft}, 0,
                        {{2, 2, soft}, {3, 3, soft}, {2, 3, std::nullopt}});
    EXPECT_EQ(tap(taps, 1.7).tapSequence, kOneTap) << "the finalized taps do not count";
}

TEST(TouchFrameProcessor, IgnoresAnOlderGeneration) {
    for (const bool isReset : {false, true}) {
        TouchFrameProcessor processor;
        const auto old = tap(processor, 1).generation;
        isReset ? processor.reset() : processor.setCornerPalmRejection({.isEnabled = true});
        EXPECT_FALSE(processor.isCurrent(old));
        const auto [now, draw, slide, none, taps] = tap(processor, 1.1);
        EXPECT_EQ(taps, kOneTap) << "the tap before does not count";
        EXPECT_TRUE(processor.isCurrent(now));
        EXPECT_EQ(now, old + 1);
        expectFinalizedOnce(processor, &TouchFrameProcessor::finalize, taps.value(), now);
        processor.process(fingers(1), 2, 2);
        expectFinalizedOnce(processor, &TouchFrameProcessor::finalizeTipTap,
                            tap(processor, 2.5, 1).tipTapSequence.value(), now);
        expectFinalizedOnce(processor, &TouchFrameProcessor::finalizePhysicalClick, click(processor, 3).sequence, now);
    }
}

TEST(TouchFrameProcessor, SurvivesMalformedDriverInput) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    TouchFrameProcessor processor;
    processor.setCornerPalmRejection({.isEnabled = true});
    TouchSamples thousand;
    for (int i = 0; i < 1000; ++i)
        thousand.push_back({std::numeric_limits<ContactId>::max() - i, {0.5, 0.3 + 0.0001 * i}});
    processor.process(thousand, 1, 1);
    EXPECT_EQ(processor.process({}, 1.1, 1.1).tapSequence, (TapSequence{1000, 1}));
    for (int frame = 0; frame < 2000; ++frame) {  // every id is new, no finger ever lifts, the time goes back
        for (TouchSample& sample : thousand)
            sample.id = static_cast<ContactId>(static_cast<std::uint32_t>(sample.id) + 1000U);
        processor.process(frame % 100 == 0 ? thousand : fingers(1), 1 - 0.1 * frame, kNaN);
    }
    EXPECT_TRUE(processor.process({}, -1e300, 0).isEmpty());
    processor.process(TouchSamples{{1, {kNaN, 1e308}}, {2, {-1e308, kNaN}}}, 2, 2);
    EXPECT_EQ(processor.process({}, 2.1, 2.1).tapSequence, std::nullopt) << "such places count as corners";
    EXPECT_EQ(tap(processor, 3).tapSequence, kOneTap);
}

}  // namespace
}  // namespace kinesta::testing
