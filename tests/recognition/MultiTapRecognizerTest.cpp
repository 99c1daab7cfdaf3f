#include "recognition/MultiTapRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"
#include "recognition/TapWaitingInterval.h"

namespace kinesta::testing {
namespace {

PadScript tap(Seconds lift, int fingers = 2) { return PadScript().at(0).land(fingers).at(lift).upAll(); }

/// Quick taps of so many fingers, by the times of their lifts.
PadScript taps(std::initializer_list<std::pair<Seconds, int>> lifts) {
    PadScript pad;
    for (const auto& [lift, fingers] : lifts)
        pad.tap(lift, fingers);
    return pad;
}

PadScript twoFingers() { return PadScript().at(0).down(1, {0, 0.5}).down(2, {0.5, 0.5}); }

PadScript moved(std::initializer_list<Point> places) { return twoFingers().through(1, places).after(0.1).upAll(); }

TEST(MultiTapRecognizer, ATapIsShortStillAndOfTwoFingersOrMore) {
    PadScript third = twoFingers().at(0.05).move(1, {0.05, 0.5}).down(3, {0.7, 0.5}).at(0.1).move(3, {0.754, 0.5});
    PadScript oneByOne = twoFingers().at(0.1).up(1).at(0.15).down(3, {0.6, 0.5}).at(0.2).up(2).at(0.22).up(3);
    PadScript again = twoFingers().at(0.05).up(1).at(0.08).down(1, {0.6, 0.5}).at(0.1).upAll();
    PadScript late = PadScript().at(0).down(1, {0.2, 0.5}).at(0.2).down(2, {0.4, 0.5}).at(0.25).upAll();
    expectResults<MultiTapRecognizer>({
        {"as long as allowed", tap(0.24), "2 fingers x1"},
        {"too long", tap(0.2401), ""},
        {"one finger", tap(0.05, 1), ""},
        {"seven fingers", tap(0.05, 7), "7 fingers x1"},
        {"moved as far as allowed", moved({{0.055, 0.5}}), "2 fingers x1"},
        {"moved too far", moved({{0.0551, 0.5}}), ""},
        {"moved too far and back", moved({{0.1, 0.5}, {0, 0.5}}), ""},
        {"crept too far in small steps", moved({{0.02, 0.5}, {0.04, 0.5}, {0.06, 0.5}}), ""},
        {"each finger measured from its own landing", third.at(0.2).upAll(), "3 fingers x1"},
        {"fingers that come and go one by one count at their most", oneByOne, "2 fingers x1"},
        {"an id that comes again elsewhere has moved", again, ""},
        {"the whole contact counts, not the second finger's", late, ""},
        {"a lift of nothing", PadScript().at(0).hold().at(1).hold(), ""},
    });
}

TEST(MultiTapRecognizer, TapsOfTheSameFingersCloseTogetherAreCounted) {
    const PadScript moving = tap(0.1).at(0.2).land(2).through(1, {{0.5, 0.9}}).after(0.01).upAll().tap(0.3);
    expectResults<MultiTapRecognizer>({
        {"as late as allowed", taps({{1, 3}, {1.25, 3}}), "3 fingers x1; 3 fingers x2"},
        {"too late", taps({{1, 3}, {1.2501, 3}}), "3 fingers x1; 3 fingers x1"},
        {"from the lift before, not from the first, and no more than three",
         taps({{1, 2}, {1.2, 2}, {1.4, 2}, {1.6, 2}}), "2 fingers x1; 2 fingers x2; 2 fingers x3; 2 fingers x3"},
        {"other fingers", taps({{1, 2}, {1.1, 3}, {1.2, 2}}), "2 fingers x1; 3 fingers x1; 2 fingers x1"},
        {"one finger's tap breaks the chain", taps({{1, 2}, {1.1, 1}, {1.2, 2}}), "2 fingers x1; 2 fingers x1"},
        {"a movement breaks the chain", moving, "2 fingers x1; 2 fingers x1"},
    });
}

TEST(MultiTapRecognizer, OnlyTheExpectedSequenceIsFinalizedAndOnlyOnce) {
    MultiTapRecognizer recognizer;
    EXPECT_EQ(recognizer.finalize({2, 1}), std::nullopt);
    run(recognizer, taps({{1, 2}, {1.1, 2}}));
    EXPECT_EQ(recognizer.finalize({2, 1}), std::nullopt) << "it has grown";
    EXPECT_EQ(recognizer.finalize({3, 2}), std::nullopt);
    EXPECT_EQ(recognizer.finalize({2, 2}), (TapSequence{2, 2})) << "the failures have changed nothing";
    EXPECT_EQ(recognizer.finalize({2, 2}), std::nullopt);
    EXPECT_EQ(run(recognizer, taps({{1.2, 2}})), "2 fingers x1") << "the last tap is forgotten";
}

TEST(MultiTapRecognizer, TwoContactsWithOneIdAreABugOfTheDriver) {
    const auto tapWithTwins = [](Point second) {
        MultiTapRecognizer recognizer;
        recognizer.process(TouchSamples{{1, {0.5, 0.5}}, {1, second}}, 0);
        return text(recognizer.process({}, 0.1));
    };
    EXPECT_DEBUG_DEATH(EXPECT_EQ(tapWithTwins({0.5, 0.51}), "2 fingers x1"), "share an id");
    EXPECT_DEBUG_DEATH(EXPECT_EQ(tapWithTwins({0.5, 0.6}), "nothing") << "the first one counts", "share an id");
}

TEST(TapWaitingInterval, OnlyFiveValuesAreIntervals) {
    std::string titles;
    for (std::int64_t value = -400; value <= 1000; ++value)
        if (const auto interval = tapWaitingInterval(value))
            titles += title(*interval) + ",";
    EXPECT_EQ(titles, "150 ms,200 ms,250 ms,300 ms,400 ms,");
    EXPECT_FALSE(tapWaitingInterval(65536 + 150) || tapWaitingInterval(4294967296 + 150));
    EXPECT_EQ(seconds(kDefaultTapWaitingInterval), MultiTapRecognizer().maximumInterval());
}

}  // namespace
}  // namespace kinesta::testing
