#include "recognition/AnchorDrawRecognizer.h"

#include <gtest/gtest.h>

#include "RecognizerRuns.h"

namespace kinesta::testing {
namespace {

PadScript anchored(Point corner, Seconds landing, Point drawing = {0.5, 0.4}) {
    PadScript pad;
    return pad.at(0).down(1, corner).at(landing).down(2, drawing);
}

/// Finger 2 draws a line upward and lifts after so long.
PadScript drawUp(PadScript pad, Seconds duration = 0.4) {
    return pad.glide({2}, {0, 0.2}, duration / 2).after(duration / 2).up(2);
}

PadScript topLeft(Seconds landing = 0.25) { return anchored({0.1, 0.9}, landing); }

TEST(AnchorDrawRecognizer, AFingerRestsInACornerWhileAnotherDraws) {
    const Texts none;
    expectResults<AnchorDrawRecognizer>({
        {"top left", drawUp(anchored({0.1, 0.9}, 0.2)), {"topLeft lineUp"}},
        {"top right", drawUp(anchored({0.9, 0.9}, 0.2)), {"topRight lineUp"}},
        {"bottom left", drawUp(anchored({0.1, 0.1}, 0.2)), {"bottomLeft lineUp"}},
        {"bottom right", drawUp(anchored({0.9, 0.1}, 0.2)), {"bottomRight lineUp"}},
        {"the corner's inner edge", drawUp(anchored({0.2, 0.8}, 0.2)), {"topLeft lineUp"}},
        {"the other inner edge", drawUp(anchored({0.8, 0.2}, 0.2)), {"bottomRight lineUp"}},
        {"beyond it", drawUp(anchored({0.2001, 0.9}, 0.2)), none},
        {"below it", drawUp(anchored({0.1, 0.7999}, 0.2)), none},
        {"rested as briefly as allowed", drawUp(topLeft(0.18)), {"topLeft lineUp"}},
        {"rested too briefly", drawUp(topLeft(0.1799)), none},
        {"drawn as long as allowed", topLeft(0.25).glide({2}, {0, 0.2}, 1).at(3.25).up(2), {"topLeft lineUp"}},
        {"drawn too long", topLeft(0.25).glide({2}, {0, 0.2}, 1).at(3.2501).up(2), none},
        {"no pattern", topLeft().glide({2}, {0, 0.1}, 0.2).after(0.01).up(2), none},
        {"a second drawing of the same anchor",
         drawUp(drawUp(topLeft()).after(0.01).down(2, {0.5, 0.4})),
         {"topLeft lineUp", "topLeft lineUp"}},
    });
}

TEST(AnchorDrawRecognizer, TheDrawingFingerLandsApartFromTheAnchor) {
    expectResults<AnchorDrawRecognizer>({
        {"as close as allowed",
         anchored({0, 0}, 0.2, {0, 0.08}).glide({2}, {0, 0.2}, 0.2).after(0.1).up(2),
         {"bottomLeft lineUp"}},
        {"too close", anchored({0, 0}, 0.2, {0, 0.0799}).glide({2}, {0, 0.2}, 0.2).after(0.1).up(2), {}},
        {"which spoils the anchor for that finger", drawUp(topLeft(0.1)), {}},
        {"and for the time that it needs to settle again",
         drawUp(topLeft(0.1).after(0.1).up(2).after(0.17).down(2, {0.5, 0.4})),
         {}},
        {"but no longer", drawUp(topLeft(0.1).after(0.15).up(2).after(0.1875).down(2, {0.5, 0.4})), {"topLeft lineUp"}},
    });
}

TEST(AnchorDrawRecognizer, TheAnchorStaysWhereItSettled) {
    const auto wandering = [](double y) {
        PadScript pad = anchored({0, 0}, 0.25).after(0.01).move(1, {0, y}).after(0.01).move(1, {0, 0});
        return pad.glide({2}, {0, 0.2}, 0.2).after(0.01).up(2);
    };
    const auto driftingBefore = [](Point to, Seconds landing) {
        return drawUp(PadScript().at(0).down(1, {0.16, 0.9}).at(0.1).move(1, to).at(landing).down(2, {0.5, 0.4}));
    };
    expectResults<AnchorDrawRecognizer>({
        {"wandered as far as allowed", wandering(0.04), {"bottomLeft lineUp"}},
        {"wandered too far and back", wandering(0.0401), {}},
        {"jumped with the lift", topLeft().glide({2}, {0, 0.2}, 0.2).after(0.01).up(2).move(1, {0.15, 0.9}), {}},
        {"left the corner, near enough",
         anchored({0.19, 0.9}, 0.25).glide({2}, {0, 0.2}, 0.2).after(0.01).up(2).move(1, {0.21, 0.9}),
         {}},
        {"settled anew in the corner, too briefly", driftingBefore({0.1, 0.9}, 0.27), {}},
        {"settled anew long enough", driftingBefore({0.1, 0.9}, 0.29), {"topLeft lineUp"}},
        {"moved a little: settled since 0", driftingBefore({0.19, 0.9}, 0.19), {"topLeft lineUp"}},
        {"settled anew in another corner", driftingBefore({0.1, 0.1}, 0.29), {"bottomLeft lineUp"}},
        {"moved out of the corners", driftingBefore({0.3, 0.9}, 0.29), {}},
    });
}

TEST(AnchorDrawRecognizer, OtherChangesOfFingersEndIt) {
    const PadScript drawn = topLeft().glide({2}, {0, 0.2}, 0.2);
    const PadScript anchorLifts = anchored({0.1, 0.9}, 0.25, {0.9, 0.7}).glide({2}, {0, 0.2}, 0.2).after(0.01).up(1);
    expectResults<AnchorDrawRecognizer>({
        {"both lift at once", PadScript(drawn).after(0.01).upAll(), {}},
        {"a third finger", PadScript(drawn).after(0.01).down(3, {0.7, 0.5}).after(0.01).up(3).after(0.01).up(2), {}},
        {"another finger draws on", PadScript(drawn).after(0.01).up(2).down(3, {0.5, 0.6}).after(0.01).up(3), {}},
        {"the anchor lifts first", anchorLifts, {}},
        {"and the drawing finger is the next anchor where it rests in a corner",
         PadScript(anchorLifts).after(0.2).down(3, {0.5, 0.4}).glide({3}, {0, 0.2}, 0.2).after(0.01).up(3),
         {"topRight lineUp"}},
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
