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

/// Finger 9 taps beside the others.
PadScript tipTaps(PadScript pad, std::initializer_list<Seconds> lifts, double x = 0.5) {
    for (const Seconds lift : lifts)
        pad.at(lift - 0.05).down(9, {x, 0.5}).at(lift).up(9);
    return pad;
}

/// Clicks of 0.1 s, forced ones for negative times of their releases.
PadScript clicks(PadScript pad, std::initializer_list<Seconds> releases) {
    for (const Seconds release : releases)
        pad.at(std::abs(release) - 0.1).press().stage(release < 0 ? 2 : 1).at(std::abs(release)).release();
    return pad;
}

void expectPlays(const std::vector<std::tuple<const char*, PadScript, const char*>>& plays) {
    for (const auto& [name, script, gestures] : plays)
        EXPECT_EQ(play(script), gestures) << name;
}

TEST(MultitouchService, DelaysTapsThatMayGrow) {
    expectPlays({
        {"a fourth begins again", taps({1, 1.2, 1.4, 1.6}), "1.4 tripleTap of 2; 1.85 singleTap of 2"},
        {"a frame at the very end of the wait comes first", taps({1, 1.25}), "1.5 doubleTap of 2"},
        {"a frame after it is late", taps({1, 1.2501}), "1.25 singleTap of 2; 1.5001 singleTap of 2"},
        {"other fingers end the wait of the tap before", taps({1}).tap(1.1, 3), "1.35 singleTap of 3"},
        {"a shorter wait counts at once", taps({1}).at(1.1).setTapWaiting(150).tap(1.2), "1.35 singleTap of 2"},
        {"a wait keeps the length with which it began", taps({1}).at(1.1).setTapWaiting(150), "1.25 singleTap of 2"},
        {"the setting outlives being off", patient().tap(1).tap(1.39), "1.79 doubleTap of 2"},
        {"being off forgets a waiting tap", taps({1}).at(1.05).setGestures(false).setGestures(true).tap(1.2),
         "1.45 singleTap of 2"},
    });
}

TEST(MultitouchService, ReportsTipTapsSlidesAndDrawings) {
    PadScript slide = PadScript().at(1).land(2, {0.05, 0.5}).at(1.1).move(1, {0.05, 0.54}).move(2, {0.1, 0.54});
    PadScript drawing = PadScript().at(1).down(1, {0.1, 0.9}).at(1.2).down(9, {0.5, 0.5}).glide({9}, {-0.3, 0}, 0.3);
    const PadScript once = tipTaps(touching(1), {1.2});
    expectPlays({
        {"double tip-tap", tipTaps(touching(1), {1.2, 1.45}), "1.7 doubleTipTapRight of 2"},
        {"too late for a double", tipTaps(touching(1), {1.2, 1.4501}),
         "1.45 tipTapRight of 2; 1.7001 tipTapRight of 2"},
        {"triple, at once", tipTaps(touching(1), {1.2, 1.4, 1.6}), "1.6 tripleTipTapRight of 2"},
        {"the other side", tipTaps(once, {1.4}, 0.1), "1.65 tipTapLeft of 2"},
        {"another anchor", tipTaps(PadScript(once).at(1.21).up(1).down(2, {0.4, 0.5}), {1.44}),
         "1.69 tipTapRight of 2"},
        {"the tap setting counts and outlives being off", tipTaps(patient().at(1).land(1), {1.2, 1.59}),
         "1.99 doubleTipTapRight of 2"},
        {"a quick one is a tap of two fingers too", PadScript(once).at(1.23).upAll(),
         "1.45 tipTapRight of 2; 1.48 singleTap of 2"},
        {"a short slide is a tap too", slide.at(1.2).upAll(), "1.1 edgeSlide of 2 left +1; 1.45 singleTap of 2"},
        {"a drawing with its lift", drawing.up(9), "1.5 anchorDraw topLeft lineLeft"},
    });
}

TEST(MultitouchService, ReportsClicksByFingersAndPressure) {
    const auto lifted = [](Uptime received) {
        return PadScript().at(0.1).land(2).receivedAt(received).at(0.2).upAll().click(0.25, 0.3);
    };
    const PadScript forced = touching(3).at(1.1).press().stage(2).stage(1).stage(0).at(1.2).release();
    const PadScript one = touching(2).click(1, 1.1).up(1).click(1.12, 1.16).down(1, {0.5, 0.5}).click(1.2, 1.25);
    const PadScript held = touching(2).click(1, 1.1).at(1.4).press().setGestures(false).setGestures(true);
    expectPlays({
        {"a Force Click whose pressure falls back", forced, "1.45 singleForceClick of 3"},
        {"pressure before the click", touching(3).stage(2).click(1.1, 1.2), "1.45 singleSoftClick of 3"},
        {"double", clicks(touching(2), {-1.1, -1.35}), "1.6 doubleForceClick of 2"},
        {"too late for a double", clicks(touching(2), {1.1, 1.3501}),
         "1.35 singleSoftClick of 2; 1.6001 singleSoftClick of 2"},
        {"double of any pressure", clicks(touching(2), {-1.1, 1.3}), "1.55 doubleClick of 2"},
        {"any pressure remains", clicks(touching(2), {1.1, -1.3, -1.5}), "1.5 tripleClick of 2"},
        {"triple, at once", clicks(touching(5), {1.1, 1.3, 1.5}), "1.5 tripleSoftClick of 5"},
        {"other fingers", clicks(clicks(touching(2), {1.1}).down(3, {0.6, 0.5}), {1.3}), "1.55 singleSoftClick of 3"},
        {"the tap setting is not for clicks", clicks(touching(2).setTapWaiting(400), {1.2, 1.5}),
         "1.45 singleSoftClick of 2; 1.75 singleSoftClick of 2"},
        {"one finger", touching(1).click(1, 1.1), ""},
        {"six", touching(6).click(1, 1.1), ""},
        {"received as long before as allowed", lifted(0.13), "0.45 singleTap of 2; 0.55 singleSoftClick of 2"},
        {"and longer", lifted(0.1299), "0.45 singleTap of 2"},
        {"a release without a press", touching(2).at(1.1).release(), ""},
        {"a one-finger click ends the sequence", one, "1.5 singleSoftClick of 2"},
        {"being off forgets a press", PadScript(held).at(1.5).release(), "1.35 singleSoftClick of 2"},
    });
}

TEST(MultitouchService, IgnoresFingersThatClickedUntilAllHaveLifted) {
    const PadScript clicked = touching(2).click(1, 1.1);
    const PadScript tapping = PadScript(clicked).at(1.12).up(1).at(1.15).down(5, {0.6, 0.5}).at(1.2).up(5);
    PadScript moving = taps({0.9}).at(0.95).land(2).through(1, {{0.5, 0.9}}).click(0.97, 1).at(1.01).upAll();
    expectPlays({
        {"one remains", tapping, "1.35 singleSoftClick of 2"},
        {"later", PadScript(clicked).at(1.15).upAll().tap(2), "1.35 singleSoftClick of 2; 2.25 singleTap of 2"},
        {"a tap before counts", moving.tap(1.1), "1.25 singleSoftClick of 2; 1.35 doubleTap of 2"},
    });
}

TEST(MultitouchService, TakesPalmsForNoFingers) {
    const PadScript palm = PadScript().setPalmRejection(true).at(1).down(99, {0.02, 0.02});
    const PadScript tapped = PadScript(palm).at(1.95).land(2).at(2).up(1).up(2);
    const PadScript clicked = PadScript(palm).at(2).land(2).click(2, 2.1).up(1).up(2);
    const PadScript changed = touching(2).at(1.05).setPalmRejection(true).at(1.055).hold();
    expectPlays({
        {"a tap beside a palm", tapped, "2.25 singleTap of 2"},
        {"a click of a palm", PadScript(palm).click(2, 2.1), ""},
        {"a palm alone forgets the fingers before", PadScript(tapped).at(2.01).up(99).click(2.02, 2.1),
         "2.25 singleTap of 2"},
        {"a palm that stays keeps clicked fingers from tapping",
         PadScript(clicked).at(2.2).land(2).at(2.25).up(1).up(2), "2.35 singleSoftClick of 2"},
        {"equal settings cancel nothing", taps({1}).at(1.1).setPalmRejection(false), "1.25 singleTap of 2"},
        {"fingers on the pad at a change are ignored", PadScript(changed).click(1.06, 1.08).at(1.1).upAll(), ""},
        {"until all have lifted", PadScript(changed).at(1.1).upAll().tap(1.2), "1.45 singleTap of 2"},
    });
}

}  // namespace
}  // namespace kinesta::testing
