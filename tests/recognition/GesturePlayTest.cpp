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

/// Recognition that waits long for more, and was off since that was set.
PadScript patient() { return PadScript().setTapWaiting(400).setGestures(false).setGestures(true); }

void expectPlays(const std::vector<std::tuple<const char*, PadScript, const char*>>& plays) {
    for (const auto& [name, script, gestures] : plays)
        EXPECT_EQ(play(script), gestures) << name;
}

TEST(PlayedGestures, TapsWaitForMoreUnlessThereCanBeNoMore) {
    expectPlays({
        {"a fourth begins anew", taps({1, 1.2, 1.4, 1.6}), "1.4 tripleTap of 2; 1.85 singleTap of 2"},
        {"a frame at the very end of the wait comes first", taps({1, 1.25}), "1.5 doubleTap of 2"},
        {"a frame after it is late", taps({1, 1.2501}), "1.25 singleTap of 2; 1.5001 singleTap of 2"},
        {"other fingers end the wait of the tap before", taps({1}).tap(1.1, 3), "1.35 singleTap of 3"},
        {"a shorter one counts at once", taps({1}).at(1.1).setTapWaiting(150).tap(1.2), "1.35 singleTap of 2"},
        {"a wait keeps the length with which it began", taps({1}).at(1.1).setTapWaiting(150), "1.25 singleTap of 2"},
        {"the setting outlives being off", patient().tap(1).tap(1.39), "1.79 doubleTap of 2"},
    });
}

TEST(PlayedGestures, TipTapsSlidesAndDrawingsAreToldInTheirTime) {
    const auto tipTaps = [](PadScript pad, std::initializer_list<Seconds> lifts) {
        for (const Seconds lift : lifts)
            pad.at(lift - 0.05).down(9, {0.5, 0.5}).at(lift).up(9);
        return pad;
    };
    PadScript slide = PadScript().at(1).land(2, {0.05, 0.5}).at(1.1).move(1, {0.05, 0.54}).move(2, {0.1, 0.54});
    PadScript drawing = PadScript().at(1).down(1, {0.1, 0.9}).at(1.2).down(9, {0.5, 0.5}).glide({9}, {-0.3, 0}, 0.3);
    expectPlays({
        {"double tip-tap", tipTaps(touching(1), {1.2, 1.4}), "1.65 doubleTipTapRight of 2"},
        {"triple, at once", tipTaps(touching(1), {1.2, 1.4, 1.6}), "1.6 tripleTipTapRight of 2"},
        {"waiting as taps do", tipTaps(touching(1).setTapWaiting(400), {1.2, 1.59}), "1.99 doubleTipTapRight of 2"},
        {"and the setting outlives being off", tipTaps(patient().at(1).land(1), {1.2, 1.59}),
         "1.99 doubleTipTapRight of 2"},
        {"a quick one is a tap of two fingers too", tipTaps(touching(1), {1.2}).at(1.23).upAll(),
         "1.45 tipTapRight of 2; 1.48 singleTap of 2"},
        {"a short slide is a tap too", slide.at(1.2).upAll(), "1.1 edgeSlide of 2 left +1; 1.45 singleTap of 2"},
        {"a drawing with its lift", drawing.up(9), "1.5 anchorDraw topLeft lineLeft"},
    });
}

TEST(PlayedGestures, ClicksAreToldByFingersAndPressure) {
    const auto lifted = [](Uptime received) {
        return PadScript().at(0.1).land(2).receivedAt(received).at(0.2).upAll().click(0.25, 0.3);
    };
    const PadScript forced = touching(3).at(1.1).press().stage(2).stage(1).stage(0).at(1.2).release();
    const PadScript unlike = touching(2).at(1.1).press().stage(2).at(1.2).release().click(1.3, 1.4);
    const PadScript triple = touching(5).click(1, 1.1).click(1.2, 1.3).click(1.4, 1.5);
    const PadScript one = touching(2).click(1, 1.1).up(1).click(1.12, 1.16).down(1, {0.5, 0.5}).click(1.2, 1.25);
    expectPlays({
        {"a Force Click, though the pressure falls back", forced, "1.45 singleForceClick of 3"},
        {"pressure before the click", touching(3).stage(2).click(1.1, 1.2), "1.45 singleSoftClick of 3"},
        {"double of any pressure", unlike, "1.65 doubleClick of 2"},
        {"triple, at once", triple, "1.5 tripleSoftClick of 5"},
        {"the tap setting is not for clicks", touching(2).setTapWaiting(400).click(1.1, 1.2).click(1.46, 1.5),
         "1.45 singleSoftClick of 2; 1.75 singleSoftClick of 2"},
        {"one finger", touching(1).click(1, 1.1), ""},
        {"six", touching(6).click(1, 1.1), ""},
        {"received as long before as allowed", lifted(0.13), "0.45 singleTap of 2; 0.55 singleSoftClick of 2"},
        {"and longer", lifted(0.1299), "0.45 singleTap of 2"},
        {"a release without a press", touching(2).at(1.1).release(), ""},
        {"a one-finger click ends the sequence", one, "1.5 singleSoftClick of 2"},
    });
}

TEST(PlayedGestures, FingersThatClickedMakeNoOtherGestureUntilAllHaveLifted) {
    const PadScript clicked = touching(2).click(1, 1.1);
    const PadScript tapping = PadScript(clicked).at(1.12).up(1).at(1.15).down(5, {0.6, 0.5}).at(1.2).up(5);
    const PadScript moving = taps({0.9}).at(0.95).land(2).through(1, {{0.5, 0.9}}).click(0.97, 1);
    expectPlays({
        {"no tap", PadScript(clicked).at(1.15).upAll(), "1.35 singleSoftClick of 2"},
        {"nor while one remains", tapping, "1.35 singleSoftClick of 2"},
        {"but later", PadScript(clicked).at(1.15).upAll().tap(2), "1.35 singleSoftClick of 2; 2.25 singleTap of 2"},
        {"a tap before counts", PadScript(moving).at(1.01).upAll().tap(1.1),
         "1.25 singleSoftClick of 2; 1.35 doubleTap of 2"},
    });
}

TEST(PlayedGestures, PalmsAreNoFingers) {
    const PadScript palm = PadScript().setPalmRejection(true).at(1).down(99, {0.02, 0.02});
    const PadScript tapped = PadScript(palm).at(1.95).land(2).at(2).up(1).up(2);
    const PadScript clicked = PadScript(palm).at(2).land(2).click(2, 2.1).up(1).up(2);
    const PadScript changed = touching(2).at(1.05).setPalmRejection(true);
    expectPlays({
        {"a tap beside a palm", tapped, "2.25 singleTap of 2"},
        {"a click beside a palm", PadScript(palm).at(2).land(2).click(2.1, 2.2), "2.45 singleSoftClick of 2"},
        {"a click of a palm", PadScript(palm).click(2, 2.1), ""},
        {"a palm alone forgets the fingers before", PadScript(tapped).click(2.02, 2.1), "2.25 singleTap of 2"},
        {"a palm that stays keeps clicked fingers from tapping",
         PadScript(clicked).at(2.2).land(2).at(2.25).up(1).up(2), "2.35 singleSoftClick of 2"},
        {"the same settings void nothing", taps({1}).at(1.1).setPalmRejection(false), "1.25 singleTap of 2"},
        {"fingers there at a change are ignored", PadScript(changed).click(1.06, 1.08).at(1.1).upAll(), ""},
        {"until all have lifted", PadScript(changed).at(1.1).upAll().tap(1.2), "1.45 singleTap of 2"},
    });
}

TEST(PlayedGestures, TurningRecognitionOffForgetsEverything) {
    const PadScript held = touching(2).click(1, 1.1).at(1.4).press();
    expectPlays({
        {"a tap that waits", taps({1}).at(1.05).setGestures(false).setGestures(true).tap(1.2), "1.45 singleTap of 2"},
        {"a click that is not released", PadScript(held).setGestures(false).setGestures(true).at(1.5).release(),
         "1.35 singleSoftClick of 2"},
    });
}

}  // namespace
}  // namespace kinesta::testing
