#include <gtest/gtest.h>

#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

PadScript taps(std::initializer_list<Seconds> lifts) {
    PadScript pad;
    for (const Seconds lift : lifts)
        pad.tap(lift);
    return pad;
}

PadScript touching(int fingers) { return PadScript().at(1).land(fingers); }

struct Play {
    const char* name;
    PadScript script;
    Gestures gestures;
};

void expectPlays(const std::vector<Play>& plays) {
    for (const Play& p : plays)
        EXPECT_EQ(play(p.script), p.gestures) << p.name;
}

TEST(PlayedGestures, TapsWaitForMoreUnlessThereCanBeNoMore) {
    expectPlays({
        {"a fourth begins anew", taps({1, 1.2, 1.4, 1.6}), {{1.4, "tripleTap", 2}, {1.85, "singleTap", 2}}},
        {"a frame at the very end of the wait comes first", taps({1, 1.25}), {{1.5, "doubleTap", 2}}},
        {"a frame after it comes too late", taps({1, 1.2501}), {{1.25, "singleTap", 2}, {1.5001, "singleTap", 2}}},
        {"other fingers end the wait of the tap before", taps({1}).tap(1.1, 3), {{1.35, "singleTap", 3}}},
        {"a wait keeps the length with which it began", taps({1}).at(1.1).setTapWaiting(150), {{1.25, "singleTap", 2}}},
    });
}

TEST(PlayedGestures, TipTapsSlidesAndDrawingsAreToldInTheirTime) {
    const auto tipTap = [](PadScript pad, Seconds lift) {
        return pad.at(lift - 0.05).down(9, {0.5, 0.5}).at(lift).up(9);
    };
    expectPlays({
        {"double tip-tap", tipTap(tipTap(touching(1), 1.2), 1.4), {{1.65, "doubleTipTapRight", 2}}},
        {"triple, at once", tipTap(tipTap(tipTap(touching(1), 1.2), 1.4), 1.6), {{1.6, "tripleTipTapRight", 2}}},
        {"a quick one is a tap of two fingers too",
         tipTap(touching(1), 1.2).at(1.23).upAll(),
         {{1.45, "tipTapRight", 2}, {1.48, "singleTap", 2}}},
        {"a short slide is a tap too",
         PadScript().at(1).land(2, {0.05, 0.5}).at(1.1).move(1, {0.05, 0.54}).move(2, {0.1, 0.54}).at(1.2).upAll(),
         {{1.1, "edgeSlide", 2, "left +1"}, {1.45, "singleTap", 2}}},
        {"a drawing with its lift",
         PadScript().at(1).down(1, {0.1, 0.9}).at(1.2).down(9, {0.5, 0.5}).glide({9}, {-0.3, 0}, 0.3).up(9),
         {{1.5, "anchorDraw", 0, "topLeft lineLeft"}}},
    });
}

TEST(PlayedGestures, ClicksAreToldByFingersAndPressure) {
    const auto lifted = [](Uptime received) {
        return PadScript().at(0.1).land(2).receivedAt(received).at(0.2).upAll().click(0.25, 0.3);
    };
    expectPlays({
        {"a Force Click, though the pressure falls back",
         touching(3).at(1.1).press().stage(2).stage(1).stage(0).at(1.2).release(),
         {{1.45, "singleForceClick", 3}}},
        {"pressure before the click is not the click's",
         touching(3).stage(2).click(1.1, 1.2),
         {{1.45, "singleSoftClick", 3}}},
        {"double of any pressure",
         touching(2).at(1.1).press().stage(2).at(1.2).release().click(1.3, 1.4),
         {{1.65, "doubleClick", 2}}},
        {"triple, at once", touching(5).click(1, 1.1).click(1.2, 1.3).click(1.4, 1.5), {{1.5, "tripleSoftClick", 5}}},
        {"the tap setting is not for clicks",
         touching(2).setTapWaiting(400).click(1.1, 1.2),
         {{1.45, "singleSoftClick", 2}}},
        {"one finger", touching(1).click(1, 1.1), {}},
        {"six", touching(6).click(1, 1.1), {}},
        {"fingers received as long before as allowed",
         lifted(0.13),
         {{0.45, "singleTap", 2}, {0.55, "singleSoftClick", 2}}},
        {"and longer", lifted(0.1299), {{0.45, "singleTap", 2}}},
        {"a release without a press", touching(2).at(1.1).release(), {}},
        {"a one-finger click ends the sequence",
         touching(2).click(1, 1.1).up(1).click(1.12, 1.16).down(1, {0.5, 0.5}).click(1.2, 1.25),
         {{1.5, "singleSoftClick", 2}}},
    });
}

TEST(PlayedGestures, FingersThatClickedMakeNoOtherGestureUntilAllHaveLifted) {
    const PadScript clicked = touching(2).click(1, 1.1);
    const Gestures click{{1.35, "singleSoftClick", 2}};
    expectPlays({
        {"no tap", PadScript(clicked).at(1.15).upAll(), click},
        {"nor while one remains", PadScript(clicked).at(1.12).up(1).at(1.15).down(5, {0.6, 0.5}).at(1.2).up(5), click},
        {"but after the lift", PadScript(clicked).at(1.15).upAll().tap(2), {click[0], {2.25, "singleTap", 2}}},
        {"a tap before it still counts as one",
         taps({0.9}).at(0.95).land(2).click(0.95, 1).at(1.01).upAll().tap(1.1),
         {{1.25, "singleSoftClick", 2}, {1.35, "doubleTap", 2}}},
    });
}

TEST(PlayedGestures, PalmsAreNoFingers) {
    const PadScript palm = PadScript().setPalmRejection(true).at(1).down(99, {0.02, 0.02});
    const PadScript tapped = PadScript(palm).at(1.95).land(2).at(2).up(1).up(2);
    const Gestures tap{{2.25, "singleTap", 2}};
    expectPlays({
        {"a tap beside a palm", tapped, tap},
        {"a click beside a palm", PadScript(palm).at(2).land(2).click(2.1, 2.2), {{2.45, "singleSoftClick", 2}}},
        {"a click of a palm", PadScript(palm).click(2, 2.1), {}},
        {"a palm alone forgets the fingers before", PadScript(tapped).click(2.02, 2.1), tap},
        {"a palm that stays keeps clicked fingers from tapping",
         PadScript(palm).at(2).land(2).click(2, 2.1).up(1).up(2).at(2.2).land(2).at(2.25).up(1).up(2),
         {{2.35, "singleSoftClick", 2}}},
        {"the same settings void nothing", taps({1}).at(1.1).setPalmRejection(false), {{1.25, "singleTap", 2}}},
        {"fingers on the pad at a change are ignored, and so is their click",
         touching(2).at(1.05).setPalmRejection(true).click(1.06, 1.08).at(1.1).upAll(),
         {}},
        {"until all have lifted",
         touching(2).at(1.05).setPalmRejection(true).at(1.1).upAll().tap(1.2),
         {{1.45, "singleTap", 2}}},
    });
}

TEST(PlayedGestures, TurningRecognitionOffForgetsEverything) {
    expectPlays({
        {"a tap that waits, also when it is soon on again, and begins anew",
         taps({1}).at(1.05).setGestures(false).setGestures(true).tap(1.2),
         {{1.45, "singleTap", 2}}},
        {"a click that is not released",
         touching(2).click(1, 1.1).at(1.4).press().setGestures(false).setGestures(true).at(1.5).release(),
         {{1.35, "singleSoftClick", 2}}},
    });
}

}  // namespace
}  // namespace kinesta::testing
