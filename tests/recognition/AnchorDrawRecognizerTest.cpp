#include "recognition/AnchorDrawRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

PadScript anchored(Point corner, Seconds landing = 0.25, Point drawing = {0.5, 0.4}) {
    return PadScript().at(0).down(1, corner).at(landing).down(2, drawing);
}

PadScript topLeft(Seconds landing = 0.25) { return anchored({0.1, 0.9}, landing); }

/// A finger draws a line upward.
PadScript line(PadScript pad, ContactId finger = 2) { return pad.glide({finger}, {0, 0.2}, 0.2).after(0.01); }

/// Finger 2 does so and lifts.
PadScript drawUp(PadScript pad) { return line(std::move(pad)).up(2); }

TEST(AnchorDrawRecognizer, AFingerRestsInACornerWhileAnotherDraws) {
    expectResults<AnchorDrawRecognizer>({
        {"top left's inner edge", drawUp(anchored({0.2, 0.8})), "topLeft lineUp"},
        {"top right's", drawUp(anchored({0.8, 0.8})), "topRight lineUp"},
        {"bottom left's", drawUp(anchored({0.2, 0.2})), "bottomLeft lineUp"},
        {"bottom right's", drawUp(anchored({0.8, 0.2})), "bottomRight lineUp"},
        {"beyond it", drawUp(anchored({0.2001, 0.9})), ""},
        {"below it", drawUp(anchored({0.1, 0.7999})), ""},
        {"rested as briefly as allowed", drawUp(topLeft(0.18)), "topLeft lineUp"},
        {"rested too briefly", drawUp(topLeft(0.1799)), ""},
        {"drawn as long as allowed", line(topLeft()).at(3.25).up(2), "topLeft lineUp"},
        {"drawn too long", line(topLeft()).at(3.2501).up(2), ""},
        {"no pattern", topLeft().glide({2}, {0, 0.1}, 0.2).after(0.01).up(2), ""},
        {"twice", drawUp(drawUp(topLeft()).after(0.01).down(2, {0.5, 0.4})), "topLeft lineUp; topLeft lineUp"},
    });
}

TEST(AnchorDrawRecognizer, TheDrawingFingerLandsApartFromTheAnchor) {
    const auto landingAgain = [](Seconds lift, Seconds pause) {
        return drawUp(topLeft(0.1).at(lift).up(2).after(pause).down(2, {0.5, 0.4}));
    };
    expectResults<AnchorDrawRecognizer>({
        {"as close as allowed", drawUp(anchored({0, 0}, 0.2, {0, 0.08})), "bottomLeft lineUp"},
        {"too close", drawUp(anchored({0, 0}, 0.2, {0, 0.0799})), ""},
        {"which spoils the anchor for that finger", drawUp(topLeft(0.1)), ""},
        {"and for the time that it needs to settle again", landingAgain(0.2, 0.17), ""},
        {"but no longer", landingAgain(0.25, 0.1875), "topLeft lineUp"},
    });
}

TEST(AnchorDrawRecognizer, TheAnchorStaysWhereItSettled) {
    const auto wandering = [](double y) { return drawUp(anchored({0, 0}).through(1, {{0, y}, {0, 0}})); };
    const auto driftingBefore = [](Point to, Seconds landing) {
        return drawUp(PadScript().at(0).down(1, {0.16, 0.9}).at(0.1).move(1, to).at(landing).down(2, {0.5, 0.4}));
    };
    expectResults<AnchorDrawRecognizer>({
        {"wandered as far as allowed", wandering(0.04), "bottomLeft lineUp"},
        {"wandered too far and back", wandering(0.0401), ""},
        {"jumped with the lift", drawUp(topLeft()).move(1, {0.15, 0.9}), ""},
        {"left the corner, near enough", drawUp(anchored({0.19, 0.9})).move(1, {0.21, 0.9}), ""},
        {"settled anew in the corner, too briefly", driftingBefore({0.1, 0.9}, 0.27), ""},
        {"settled anew long enough", driftingBefore({0.1, 0.9}, 0.29), "topLeft lineUp"},
        {"moved a little: settled since 0", driftingBefore({0.19, 0.9}, 0.19), "topLeft lineUp"},
        {"settled anew in another corner", driftingBefore({0.1, 0.1}, 0.29), "bottomLeft lineUp"},
        {"moved out of the corners", driftingBefore({0.3, 0.9}, 0.29), ""},
    });
}

TEST(AnchorDrawRecognizer, OtherChangesOfFingersEndIt) {
    const PadScript drawn = line(topLeft());
    const PadScript anchorLifts = line(anchored({0.1, 0.9}, 0.25, {0.9, 0.7})).up(1);
    const PadScript nextDraws = line(PadScript(anchorLifts).after(0.2).down(3, {0.5, 0.4}), 3).up(3);
    expectResults<AnchorDrawRecognizer>({
        {"both lift at once", PadScript(drawn).upAll(), ""},
        {"a third finger", PadScript(drawn).down(3, {0.7, 0.5}).after(0.01).up(3).after(0.01).up(2), ""},
        {"another finger draws on", PadScript(drawn).up(2).down(3, {0.5, 0.6}).after(0.01).up(3), ""},
        {"the anchor lifts first", anchorLifts, ""},
        {"and the drawing finger is the next anchor where it rests in a corner", nextDraws, "topRight lineUp"},
    });
}

TEST(AnchorDrawRecognizer, EveryDrawingOfThreeSecondsFitsAndEndlessOnesAreNoPattern) {
    const auto drawn = [](int points, Seconds interval) {
        AnchorDrawRecognizer recognizer;
        recognizer.process(TouchSamples{{1, {0.1, 0.1}}}, 0);
        Seconds time = 1;
        for (int i = 0; i < points; ++i, time += interval)
            recognizer.process(TouchSamples{{1, {0.1, 0.1}}, {2, {0.5, 0.5 + 0.005 * i}}}, time);
        return text(recognizer.process(TouchSamples{{1, {0.1, 0.1}}}, time));
    };
    EXPECT_EQ(drawn(2999, 0.001), "bottomLeft lineUp");
    EXPECT_EQ(drawn(100'000, 0), "nothing") << "the time stands still";
}

}  // namespace
}  // namespace kinesta::testing
