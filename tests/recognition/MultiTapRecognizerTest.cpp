#include "recognition/MultiTapRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"
#include "recognition/TapWaitingInterval.h"

namespace kinesta::testing {
namespace {

PadScript tap(Seconds landing, Seconds lift, int fingers = 2) {
    return PadScript().at(landing).land(fingers).at(lift).upAll();
}

/// Quick taps of so many fingers, by the times of their lifts.
PadScript taps(std::initializer_list<std::pair<Seconds, int>> lifts) {
    PadScript pad;
    for (const auto& [lift, fingers] : lifts)
        pad.tap(lift, fingers);
    return pad;
}

PadScript twoFingers() {
    PadScript pad;
    return pad.at(0).down(1, {0, 0.5}).down(2, {0.5, 0.5});
}

TEST(MultiTapRecognizer, ATapIsShortStillAndOfTwoFingersOrMore) {
    expectResults<MultiTapRecognizer>({
        {"as long as allowed", tap(0, 0.24), {"2 fingers x1"}},
        {"too long", tap(0, 0.2401), {}},
        {"one finger", tap(0, 0.05, 1), {}},
        {"seven fingers", tap(0, 0.05, 7), {"7 fingers x1"}},
        {"moved as far as allowed", twoFingers().at(0.1).move(1, {0.055, 0.5}).at(0.2).upAll(), {"2 fingers x1"}},
        {"moved too far", twoFingers().at(0.1).move(1, {0.0551, 0.5}).at(0.2).upAll(), {}},
        {"moved too far and back",
         twoFingers().at(0.1).move(2, {0.6, 0.5}).at(0.12).move(2, {0.5, 0.5}).at(0.2).upAll(),
         {}},
        {"crept too far in small steps", twoFingers().glide({1, 2}, {0, 0.06}, 0.1).at(0.2).upAll(), {}},
        {"each finger measured from its own landing, and not against the others",
         twoFingers().at(0.05).move(1, {0.05, 0.5}).down(3, {0.7, 0.5}).at(0.1).move(3, {0.754, 0.5}).at(0.2).upAll(),
         {"3 fingers x1"}},
        {"fingers that come and go one by one count at their most",
         twoFingers().at(0.1).up(1).at(0.15).down(3, {0.6, 0.5}).at(0.2).up(2).at(0.22).up(3),
         {"2 fingers x1"}},
        {"an id that comes again elsewhere has moved",
         twoFingers().at(0.05).up(2).at(0.08).down(2, {0.6, 0.5}).at(0.1).upAll(),
         {}},
        {"the whole contact counts, not the second finger's",
         PadScript().at(0).down(1, {0.2, 0.5}).at(0.2).down(2, {0.4, 0.5}).at(0.25).upAll(),
         {}},
        {"a lift of nothing", PadScript().at(0).hold().at(1).hold(), {}},
    });
}

TEST(MultiTapRecognizer, TapsOfTheSameFingersCloseTogetherAreCounted) {
    expectResults<MultiTapRecognizer>({
        {"as late as allowed", taps({{1, 3}, {1.25, 3}}), {"3 fingers x1", "3 fingers x2"}},
        {"too late", taps({{1, 3}, {1.2501, 3}}), {"3 fingers x1", "3 fingers x1"}},
        {"from the lift before, not from the first",
         taps({{1, 2}, {1.2, 2}, {1.4, 2}}),
         {"2 fingers x1", "2 fingers x2", "2 fingers x3"}},
        {"no more than three",
         taps({{1, 2}, {1.1, 2}, {1.2, 2}, {1.3, 2}, {1.4, 2}}),
         {"2 fingers x1", "2 fingers x2", "2 fingers x3", "2 fingers x3", "2 fingers x3"}},
        {"other fingers begin anew",
         taps({{1, 2}, {1.1, 3}, {1.2, 2}}),
         {"2 fingers x1", "3 fingers x1", "2 fingers x1"}},
        {"one finger's tap breaks the chain", taps({{1, 2}, {1.1, 1}, {1.2, 2}}), {"2 fingers x1", "2 fingers x1"}},
    });
    MultiTapRecognizer recognizer;
    PadScript broken = tap(0.9, 1).at(1.05).land(2).at(1.06).move(1, {0.5, 0.9}).at(1.1).upAll().tap(1.2);
    EXPECT_EQ(run(recognizer, broken), (Texts{"2 fingers x1", "2 fingers x1"})) << "a movement breaks the chain";
}

TEST(MultiTapRecognizer, OnlyTheExpectedSequenceIsFinalizedAndOnlyOnce) {
    MultiTapRecognizer recognizer;
    EXPECT_EQ(recognizer.finalize({2, 1}), std::nullopt);
    run(recognizer, taps({{1, 2}, {1.1, 2}}));
    EXPECT_EQ(recognizer.finalize({2, 1}), std::nullopt) << "it has grown";
    EXPECT_EQ(recognizer.finalize({3, 2}), std::nullopt);
    EXPECT_EQ(recognizer.finalize({2, 2}), (TapSequence{2, 2})) << "the failures have changed nothing";
    EXPECT_EQ(recognizer.finalize({2, 2}), std::nullopt);
    EXPECT_EQ(run(recognizer, taps({{1.2, 2}})), Texts{"2 fingers x1"}) << "the last tap is forgotten";
}

TEST(MultiTapRecognizer, ACancelledContactIsNoTapButKeepsTheSequence) {
    MultiTapRecognizer recognizer;
    run(recognizer, taps({{1, 2}}));
    run(recognizer, PadScript().at(1.02).down(1, {0, 0}).down(2, {0.5, 0}).at(1.04).move(1, {0.5, 0.5}));
    recognizer.cancelCurrentContact();
    EXPECT_EQ(run(recognizer, PadScript().at(1.06).hold()), Texts{});
    EXPECT_EQ(run(recognizer, taps({{1.2, 2}})), Texts{"2 fingers x2"});
}

TEST(MultiTapRecognizer, TheIntervalCanChangeInTheMiddleOfASequence) {
    MultiTapRecognizer recognizer;
    run(recognizer, taps({{1, 2}}));
    recognizer.setMaximumInterval(0.4);
    EXPECT_EQ(run(recognizer, taps({{1.4, 2}})), Texts{"2 fingers x2"});
    recognizer.setMaximumInterval(0.15);
    EXPECT_EQ(run(recognizer, taps({{1.6, 2}})), Texts{"2 fingers x1"});
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
    for (const TapWaitingInterval interval : kTapWaitingIntervals) {
        EXPECT_EQ(tapWaitingInterval(milliseconds(interval)), interval);
        titles += title(interval) + ",";
    }
    EXPECT_EQ(titles, "150 ms,200 ms,250 ms,300 ms,400 ms,");
    for (const std::int64_t other : {0LL, -150LL, 275LL, 350LL, 149LL, 65536LL + 150, 4294967296LL + 150})
        EXPECT_EQ(tapWaitingInterval(other), std::nullopt) << other;
    EXPECT_EQ(seconds(TapWaitingInterval::veryShort), 0.15);
    EXPECT_EQ(seconds(kDefaultTapWaitingInterval), MultiTapRecognizer().maximumInterval());
}

}  // namespace
}  // namespace kinesta::testing
