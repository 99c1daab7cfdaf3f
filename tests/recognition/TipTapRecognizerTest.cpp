#include "recognition/TipTapRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

constexpr double kAnchorX = 0.25;

/// Finger 1 rests from 0 to `landing`, when finger 2 lands `dx` beside it.
PadScript landing(Seconds time, double dx) {
    PadScript pad;
    return pad.at(0).down(1, {kAnchorX, 0.5}).at(time).down(2, {kAnchorX + dx, 0.5});
}

PadScript rested(double dx = 0.25) { return landing(0.25, dx); }

TEST(TipTapRecognizer, TheSecondFingerTapsBesideARestingOne) {
    expectResults<TipTapRecognizer>({
        {"rested as briefly as allowed, tapped as long as allowed", landing(0.12, 0.25).at(0.36).up(2), {"right of 1"}},
        {"rested too briefly", landing(0.1199, 0.25).at(0.2).up(2), {}},
        {"tapped too long", landing(0.12, 0.25).at(0.3601).up(2), {}},
        {"left", rested(-0.125).at(0.3).up(2), {"left of 1"}},
        {"as close as allowed",
         PadScript().at(0).down(1, {0, 0.5}).at(0.2).down(2, {-0.035, 0.9}).at(0.3).up(2),
         {"left of 1"}},
        {"too close, however far above",
         PadScript().at(0).down(1, {0, 0.5}).at(0.2).down(2, {0.0349, 0.9}).at(0.3).up(2),
         {}},
        {"both at once", PadScript().at(0).down(1, {0.2, 0.5}).down(2, {0.4, 0.5}).at(0.2).up(2), {}},
    });
}

TEST(TipTapRecognizer, TheTappingFingerIsMeasuredFromItsLandingTheAnchorFromFrameToFrame) {
    PadScript creeping = rested();
    for (int frame = 1; frame <= 10; ++frame)
        creeping.at(0.25 + frame * 0.01).move(1, {kAnchorX + 0.01 * frame, 0.5});
    const auto anchorMoves = [](double dx) {
        return PadScript().at(0).down(1, {0, 0}).at(0.2).down(2, {0.5, 0}).at(0.25).move(1, {dx, 0}).at(0.3).up(2);
    };
    const auto tapMoves = [](double dx) {
        return PadScript().at(0).down(1, {0.5, 0}).at(0.2).down(2, {0, 0}).at(0.25).move(2, {dx, 0}).at(0.3).up(2);
    };
    expectResults<TipTapRecognizer>({
        {"tapping finger as far as allowed", tapMoves(0.055), {"left of 1"}},
        {"tapping finger too far", tapMoves(0.0551), {}},
        {"tapping finger too far and back",
         rested().at(0.3).move(2, {0.6, 0.5}).at(0.32).move(2, {0.5, 0.5}).at(0.34).up(2),
         {}},
        {"anchor jumps as far as allowed", anchorMoves(0.045), {"right of 1"}},
        {"anchor jumps too far", anchorMoves(0.0451), {}},
        {"anchor jumps there and back",
         rested().at(0.3).move(1, {0.3, 0.5}).at(0.32).move(1, {kAnchorX, 0.5}).at(0.34).up(2),
         {}},
        {"anchor creeps far", creeping.at(0.4).up(2), {"right of 1"}},
        {"the way to the lift's own frame is not looked at",
         rested().at(0.3).up(2).move(1, {0.9, 0.9}),
         {"right of 1"}},
    });
}

TEST(TipTapRecognizer, TheAnchorSettlesAnewWhenItMoves) {
    const auto moving = [](double dx, Seconds landing) {
        PadScript pad = PadScript().at(0).down(1, {0, 0.5}).at(0.1).move(1, {dx, 0.5});
        return pad.at(landing).down(2, {0.5, 0.5}).at(landing + 0.1).up(2);
    };
    expectResults<TipTapRecognizer>({
        {"moved as far as allowed: rests since 0", moving(0.045, 0.125), {"right of 1"}},
        {"moved too far: rests since 0.1", moving(0.0451, 0.21), {}},
        {"and long enough since then", moving(0.0451, 0.225), {"right of 1"}},
        {"the side is seen from where the anchor is now",
         PadScript().at(0).down(1, {0.5, 0.5}).glide({1}, {0.2, 0}, 0.4).at(0.6).down(2, {0.6, 0.5}).at(0.7).up(2),
         {"left of 1"}},
    });
}

TEST(TipTapRecognizer, ASpoiledAnchorMustBeAloneAgain) {
    const PadScript spoiled = landing(0.11, 0.25).at(0.2).up(2);  // so that it rests since 0.2
    expectResults<TipTapRecognizer>({
        {"not yet", PadScript(spoiled).at(0.31).down(3, {0.5, 0.5}).at(0.4).up(3), {}},
        {"again", PadScript(spoiled).at(0.325).down(3, {0.5, 0.5}).at(0.4).up(3), {"right of 1"}},
        {"nor by a finger that replaces it", landing(0.11, 0.25).at(0.3).up(2).down(3, {0.6, 0.5}).at(0.35).up(3), {}},
    });
}

TEST(TipTapRecognizer, OtherChangesOfFingersEndIt) {
    const PadScript anchorLifts = rested().at(0.3).up(1);
    expectResults<TipTapRecognizer>({
        {"the anchor lifts first", anchorLifts, {}},
        {"and the remaining finger is the next anchor",
         PadScript(anchorLifts).at(0.5).down(3, {0.1, 0.5}).at(0.6).up(3),
         {"left of 2"}},
        {"which must rest in its turn", PadScript(anchorLifts).at(0.4).down(3, {0.1, 0.5}).at(0.5).up(3), {}},
        {"a third finger", rested().at(0.3).down(3, {0.7, 0.5}).at(0.32).up(3).at(0.34).up(2), {}},
        {"both lift at once", rested().at(0.3).upAll(), {}},
        {"another finger taps on", rested().at(0.3).up(2).down(3, {0.6, 0.5}).at(0.35).up(3), {}},
        {"another anchor", rested().at(0.3).up(1).down(3, {0.1, 0.5}).at(0.35).up(2), {}},
        {"the anchor goes on after a tap",
         rested().at(0.3).up(2).at(0.35).down(3, {0.1, 0.5}).at(0.4).up(3),
         {"right of 1", "left of 1"}},
    });
}

TEST(TipTapSequenceRecognizer, TapsOnOneSideOfOneAnchorAreCounted) {
    TipTapSequenceRecognizer recognizer;
    const auto tap = [&](ContactId anchor, TipTapDirection side, Seconds time) {
        return text(recognizer.process({anchor, side}, time));
    };
    using enum TipTapDirection;
    EXPECT_EQ(tap(1, left, 1.00), "left of 1 x1");
    EXPECT_EQ(tap(1, left, 1.25), "left of 1 x2");
    EXPECT_EQ(tap(1, right, 1.30), "right of 1 x1");
    EXPECT_EQ(tap(2, right, 1.35), "right of 2 x1");
    EXPECT_EQ(tap(2, right, 1.6001), "right of 2 x1");
    EXPECT_EQ(tap(2, right, 1.7), "right of 2 x2");
    EXPECT_EQ(tap(2, right, 1.8), "right of 2 x3");
    EXPECT_EQ(tap(2, right, 1.9), "right of 2 x3");

    EXPECT_EQ(recognizer.finalize({2, right, 2}), std::nullopt);
    EXPECT_EQ(recognizer.finalize({2, left, 3}), std::nullopt);
    EXPECT_EQ(recognizer.finalize({1, right, 3}), std::nullopt);
    EXPECT_EQ(text(recognizer.finalize({2, right, 3})), "right of 2 x3");
    EXPECT_EQ(tap(2, right, 1.95), "right of 2 x1");
    recognizer.reset();
    EXPECT_EQ(recognizer.finalize({2, right, 1}), std::nullopt);
}

}  // namespace
}  // namespace kinesta::testing
