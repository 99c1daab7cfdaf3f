#include "recognition/TipTapRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

/// Finger 1 rests at `x` from 0 to `time`, when finger 2 lands.
PadScript landing(Seconds time, Point second, double x = 0.25) {
    return PadScript().at(0).down(1, {x, 0.5}).at(time).down(2, second);
}

PadScript rested(Point second = {0.5, 0.5}) { return landing(0.25, second); }

TEST(TipTapRecognizer, TheSecondFingerTapsBesideARestingOne) {
    expectResults<TipTapRecognizer>({
        {"as briefly rested, as long as allowed", landing(0.12, {0.5, 0.5}).at(0.36).up(2), "right of 1"},
        {"rested too briefly", landing(0.1199, {0.5, 0.5}).at(0.2).up(2), ""},
        {"tapped too long", landing(0.12, {0.5, 0.5}).at(0.3601).up(2), ""},
        {"as close as allowed", landing(0.2, {-0.035, 0.9}, 0).at(0.3).up(2), "left of 1"},
        {"too close, however far above", landing(0.2, {0.0349, 0.9}, 0).at(0.3).up(2), ""},
        {"both at once", PadScript().at(0).land(2).at(0.2).up(2), ""},
    });
}

TEST(TipTapRecognizer, TheTappingFingerIsMeasuredFromItsLandingTheAnchorFromFrameToFrame) {
    const auto anchorMoves = [](std::initializer_list<Point> places) {
        return landing(0.2, {0.5, 0.5}, 0).through(1, places).after(0.01).up(2);
    };
    const auto tapMoves = [](std::initializer_list<Point> places) {
        return landing(0.2, {0, 0.5}, 0.5).through(2, places).after(0.01).up(2);
    };
    const Point start{0, 0.5};
    expectResults<TipTapRecognizer>({
        {"tapping finger as far as allowed", tapMoves({{0.055, 0.5}}), "left of 1"},
        {"tapping finger too far", tapMoves({{0.0551, 0.5}}), ""},
        {"tapping finger too far and back", tapMoves({{0.1, 0.5}, start}), ""},
        {"anchor jumps as far as allowed", anchorMoves({{0.045, 0.5}}), "right of 1"},
        {"anchor jumps too far", anchorMoves({{0.0451, 0.5}}), ""},
        {"anchor jumps there and back", anchorMoves({{0.05, 0.5}, start}), ""},
        {"anchor creeps far", anchorMoves({{0.03, 0.5}, {0.06, 0.5}, {0.09, 0.5}, {0.12, 0.5}}), "right of 1"},
        {"the way to the lift's own frame is not looked at", rested().at(0.3).up(2).move(1, {0.9, 0.9}), "right of 1"},
    });
}

TEST(TipTapRecognizer, TheAnchorSettlesAnewWhenItMoves) {
    const auto moving = [](double dx, Seconds landing) {
        PadScript pad = PadScript().at(0).down(1, {0, 0.5}).at(0.1).move(1, {dx, 0.5});
        return pad.at(landing).down(2, {0.5, 0.5}).at(landing + 0.1).up(2);
    };
    const PadScript crept = PadScript().at(0).down(1, {0.5, 0.5}).glide({1}, {0.2, 0}, 0.4);
    expectResults<TipTapRecognizer>({
        {"moved as far as allowed: rests since 0", moving(0.045, 0.125), "right of 1"},
        {"moved too far: rests since 0.1", moving(0.0451, 0.21), ""},
        {"and long enough since then", moving(0.0451, 0.225), "right of 1"},
        {"seen from where it is now", PadScript(crept).at(0.6).down(2, {0.6, 0.5}).at(0.7).up(2), "left of 1"},
    });
}

TEST(TipTapRecognizer, ASpoiledAnchorMustBeAloneAgain) {
    const PadScript spoiled = landing(0.11, {0.5, 0.5}).at(0.2).up(2);  // so that it rests since 0.2
    const PadScript replaced = landing(0.11, {0.5, 0.5}).at(0.3).up(2).down(3, {0.6, 0.5});
    expectResults<TipTapRecognizer>({
        {"not yet", PadScript(spoiled).at(0.31).down(3, {0.5, 0.5}).at(0.4).up(3), ""},
        {"again", PadScript(spoiled).at(0.325).down(3, {0.5, 0.5}).at(0.4).up(3), "right of 1"},
        {"nor by a finger that replaces it", PadScript(replaced).at(0.35).up(3), ""},
    });
}

TEST(TipTapRecognizer, OtherChangesOfFingersEndIt) {
    const PadScript anchorLifts = rested().at(0.3).up(1);
    const PadScript tapped = rested().at(0.3).up(2);
    expectResults<TipTapRecognizer>({
        {"the anchor lifts first", anchorLifts, ""},
        {"the other is an anchor", PadScript(anchorLifts).at(0.5).down(3, {0.1, 0.5}).at(0.6).up(3), "left of 2"},
        {"which must rest in its turn", PadScript(anchorLifts).at(0.4).down(3, {0.1, 0.5}).at(0.5).up(3), ""},
        {"a third finger", rested().at(0.3).down(3, {0.7, 0.5}).at(0.32).up(3).at(0.34).up(2), ""},
        {"both lift at once", rested().at(0.3).upAll(), ""},
        {"another finger taps on", PadScript(tapped).down(3, {0.6, 0.5}).at(0.35).up(3), ""},
        {"another anchor", PadScript(anchorLifts).down(3, {0.1, 0.5}).at(0.35).up(2), ""},
        {"two taps", PadScript(tapped).at(0.35).down(3, {0.1, 0.5}).at(0.4).up(3), "right of 1; left of 1"},
    });
}

TEST(TipTapSequenceRecognizer, TapsOnOneSideOfOneAnchorAreCounted) {
    TipTapSequenceRecognizer recognizer;
    using enum TipTapDirection;
    const std::vector<std::tuple<ContactId, TipTapDirection, Seconds, const char*>> taps{
        {1, left, 1.00, "left of 1 x1"},   {1, left, 1.25, "left of 1 x2"},     {1, right, 1.30, "right of 1 x1"},
        {2, right, 1.35, "right of 2 x1"}, {2, right, 1.6001, "right of 2 x1"}, {2, right, 1.7, "right of 2 x2"},
        {2, right, 1.8, "right of 2 x3"},  {2, right, 1.9, "right of 2 x3"}};
    for (const auto& [anchor, side, time, expected] : taps)
        EXPECT_EQ(text(recognizer.process({anchor, side}, time)), expected) << time;
    for (const TipTapSequence& other : {TipTapSequence{2, right, 2}, {2, left, 3}, {1, right, 3}})
        EXPECT_EQ(recognizer.finalize(other), std::nullopt) << text(other);
    EXPECT_EQ(text(recognizer.finalize({2, right, 3})), "right of 2 x3");
    EXPECT_EQ(text(recognizer.process({2, right}, 1.95)), "right of 2 x1");
    recognizer.reset();
    EXPECT_EQ(recognizer.finalize({2, right, 1}), std::nullopt);
}

}  // namespace
}  // namespace kinesta::testing
