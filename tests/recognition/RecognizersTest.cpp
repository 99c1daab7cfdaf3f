#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "recognition/FrameRecognition.h"
#include "support/PadScript.h"

namespace kinesta::testing {
namespace {

std::string text(const TapSequence& s) { return std::to_string(s.fingers) + "x" + std::to_string(s.taps); }
std::string text(const TipTapEvent& e) { return std::string(rawValue(e.direction)) + std::to_string(e.anchorID); }
std::string text(const EdgeSlideEvent& e) {
    return std::to_string(e.fingers) + std::string(rawValue(e.side)) + std::to_string(e.steps);
}
std::string text(const AnchorDrawEvent& e) {
    return std::string(rawValue(e.corner)) + " " + std::string(rawValue(e.pattern));
}

/// A recognizer's results for a script, joined by blanks.
template <typename Recognizer>
std::string run(Recognizer& recognizer, const PadScript& script, bool isReversed = false) {
    std::string results;
    for (const RecordingEvent& event : script.events()) {
        const auto& pad = std::get<PadEvent>(event);
        TouchSamples samples = std::get<PadFrame>(pad.content).samples;
        if (isReversed)
            std::reverse(samples.begin(), samples.end());
        const auto result = [&] {
            if constexpr (requires { recognizer.process(samples, pad.time); })
                return recognizer.process(samples, pad.time);
            else
                return recognizer.process(samples);
        }();
        if (result)
            results += (results.empty() ? "" : " ") + text(*result);
    }
    return results;
}

/// Checks a fresh recognizer's results for each named script, with the fingers listed in either order.
template <typename Recognizer>
void expectResults(const std::vector<std::tuple<std::string, PadScript, std::string>>& cases) {
    for (const auto& [name, script, results] : cases)
        for (const bool isReversed : {false, true}) {
            Recognizer recognizer;
            EXPECT_EQ(run(recognizer, script, isReversed), results) << name << (isReversed ? ", reversed" : "");
        }
}

/// A script made from a number: the last number within a limit, the first beyond it, and the results of each.
struct Bound {
    const char* name;
    std::function<PadScript(double)> script;
    double inside;
    double outside;
    const char* result;
    const char* resultOutside = "";
};

template <typename Recognizer>
void expectBounds(const std::vector<Bound>& bounds) {
    for (const Bound& b : bounds)
        expectResults<Recognizer>(
            {{b.name, b.script(b.inside), b.result}, {b.name, b.script(b.outside), b.resultOutside}});
}

PadScript twoFingers() { return PadScript().at(0).down(1, {0, 0.5}).down(2, {0.5, 0.5}); }
PadScript tapMoving(std::initializer_list<Point> places) { return twoFingers().through(1, places).after(0.1).upAll(); }

TEST(MultiTapRecognizer, TakesShortStillTapsOfTwoFingersOrMore) {
    const auto moved = [](double x) { return tapMoving({{x, 0.5}}); };
    const auto late = [](Seconds lift) { return PadScript().at(0).land(1).at(0.2).down(2, {0.1, 0}).at(lift).upAll(); };
    const auto laterFinger = [](double x) {
        return twoFingers().at(0.1).down(3, {0.5, 0.7}).at(0.15).move(3, {0.5 + x, 0.7}).at(0.2).upAll();
    };
    expectBounds<MultiTapRecognizer>({
        {"duration from first landing to last lift", late, 0.24, 0.2401, "2x1"},
        {"movement", moved, 0.055, 0.0551, "2x1"},
        {"movement of a later finger", laterFinger, 0.0549, 0.0551, "3x1"},
        {"fingers", [](double count) { return PadScript().tap(1, static_cast<int>(count)); }, 2, 1, "2x1"},
        {"interval", [](Seconds lift) { return PadScript().tap(1, 3).tap(lift, 3); }, 1.25, 1.2501, "3x1 3x2",
         "3x1 3x1"},
    });
    const PadScript oneByOne = twoFingers().at(0.1).up(1).at(0.15).down(3, {0.6, 0.5}).at(0.2).up(2).at(0.22).up(3);
    const PadScript returning = twoFingers().at(0.05).up(1).at(0.08).down(1, {0.6, 0.5}).at(0.1).upAll();
    const PadScript moving = PadScript().tap(1).at(1.06).land(2).through(1, {{0.5, 0.9}}).after(0.01).upAll().tap(1.2);
    expectResults<MultiTapRecognizer>({
        {"seven fingers", PadScript().tap(1, 7), "7x1"},
        {"moved too far and back", tapMoving({{0.1, 0.5}, {0, 0.5}}), ""},
        {"crept too far in small steps", tapMoving({{0.02, 0.5}, {0.04, 0.5}, {0.06, 0.5}}), ""},
        {"the most fingers at once count", oneByOne, "2x1"},
        {"an id that returns elsewhere has moved", returning, ""},
        {"frames without fingers", PadScript().at(0).hold().at(1).hold(), ""},
        {"one finger's tap breaks the chain", PadScript().tap(1).tap(1.1, 1).tap(1.2), "2x1 2x1"},
        {"a movement breaks the chain", moving, "2x1 2x1"},
    });
}

TEST(MultiTapRecognizer, TreatsTwoContactsWithOneIdAsADriverBug) {
    const auto tapWithTwins = [](Point second) {
        MultiTapRecognizer recognizer;
        recognizer.process(TouchSamples{{1, {0.5, 0.5}}, {1, second}}, 0);
        return recognizer.process({}, 0.1).has_value();
    };
    EXPECT_DEBUG_DEATH(EXPECT_TRUE(tapWithTwins({0.5, 0.51}) && !tapWithTwins({0.5, 0.6})) << "the first one counts",
                       "share an id");
}

/// Finger 1 rests at `x` from 0 to `time`, when finger 2 lands.
PadScript landing(Seconds time, Point second = {0.5, 0.5}, double x = 0.25) {
    return PadScript().at(0).down(1, {x, 0.5}).at(time).down(2, second);
}

PadScript anchorMoving(std::initializer_list<Point> places) {
    return landing(0.2, {0.5, 0.5}, 0).through(1, places).after(0.01).up(2);
}

PadScript tipMoving(std::initializer_list<Point> places) {
    return landing(0.2, {0, 0.5}, 0.5).through(2, places).after(0.01).up(2);
}

/// The anchor moves by `dx` at 0.1, and finger 2 taps beside it.
PadScript resettled(double dx, Seconds time) {
    PadScript pad = PadScript().at(0).down(1, {0, 0.5}).at(0.1).move(1, {dx, 0.5});
    return pad.at(time).down(2, {0.5, 0.5}).at(time + 0.1).up(2);
}

TEST(TipTapRecognizer, TakesATapBesideARestingFinger) {
    const auto anchorMoved = [](double x) { return anchorMoving({{x, 0.5}}); };
    const auto tipMoved = [](double x) { return tipMoving({{x, 0.5}}); };
    const auto above = [](double x) { return landing(0.2, {x, 0.9}, 0).at(0.3).up(2); };
    const auto afterSpoiled = [](Seconds time) {
        return landing(0.11).at(0.2).up(2).at(time).down(3, {0.5, 0.5}).at(0.4).up(3);
    };
    expectBounds<TipTapRecognizer>({
        {"rest", [](Seconds time) { return landing(time).at(0.2).up(2); }, 0.12, 0.1199, "right1"},
        {"duration", [](Seconds lift) { return landing(0.12).at(lift).up(2); }, 0.36, 0.3601, "right1"},
        {"horizontal distance to the left", above, -0.035, -0.0349, "left1"},
        {"horizontal distance to the right", above, 0.035, 0.0349, "right1"},
        {"movement of the tip", tipMoved, 0.055, 0.0551, "left1"},
        {"jump of the anchor", anchorMoved, 0.045, 0.0451, "right1"},
        {"settled anchor", [](double dx) { return resettled(dx, 0.125); }, 0.045, 0.0451, "right1"},
        {"rest after moving", [](Seconds time) { return resettled(0.0451, time); }, 0.225, 0.21, "right1"},
        {"rest after a finger that came too early", afterSpoiled, 0.325, 0.31, "right1"},
    });
    const PadScript crept = PadScript().at(0).down(1, {0.5, 0.5}).glide({1}, {0.2, 0}, 0.4).at(0.6).down(2, {0.6, 0.5});
    const PadScript anchorLifts = landing(0.25).at(0.3).up(1);
    const PadScript tapped = landing(0.25).at(0.3).up(2);
    const PadScript third = landing(0.25).at(0.3).down(3, {0.7, 0.5}).at(0.32).up(3);
    const PadScript early = landing(0.11).at(0.3).up(2).down(3, {0.6, 0.5}).at(0.35).up(3);
    expectResults<TipTapRecognizer>({
        {"both land at once", PadScript().at(0).land(2).at(0.2).up(2), ""},
        {"tip moves too far and back", tipMoving({{0.1, 0.5}, {0, 0.5}}), ""},
        {"anchor jumps there and back", anchorMoving({{0.05, 0.5}, {0, 0.5}}), ""},
        {"anchor creeps far", anchorMoving({{0.03, 0.5}, {0.06, 0.5}, {0.09, 0.5}, {0.12, 0.5}}), "right1"},
        {"seen from the anchor's present place", PadScript(crept).at(0.7).up(2), "left1"},
        {"jump with the lift", landing(0.25).at(0.3).up(2).move(1, {0.9, 0.9}), "right1"},
        {"the anchor lifts first", anchorLifts, ""},
        {"the next anchor", PadScript(anchorLifts).at(0.5).down(3, {0.1, 0.5}).at(0.6).up(3), "left2"},
        {"must rest too", PadScript(anchorLifts).at(0.4).down(3, {0.1, 0.5}).at(0.5).up(3), ""},
        {"a third finger", PadScript(third).at(0.34).up(2), ""},
        {"both lift at once", landing(0.25).at(0.3).upAll(), ""},
        {"another tip", PadScript(tapped).down(3, {0.6, 0.5}).at(0.35).up(3), ""},
        {"another anchor", PadScript(anchorLifts).down(3, {0.1, 0.5}).at(0.35).up(2), ""},
        {"another tip after one that came too early", early, ""},
        {"two taps", PadScript(tapped).at(0.35).down(3, {0.1, 0.5}).at(0.4).up(3), "right1 left1"},
    });
}

/// Fingers land at y = 0.5, `spacing` apart.
PadScript row(double x, int count, double spacing = 0.05, Point way = {}) {
    PadScript pad;
    for (ContactId id = 1; id <= count; ++id)
        pad.down(id, {x + spacing * (id - 1), 0.5});
    for (ContactId id = 1; id <= count && way != Point{}; ++id)
        (id == 1 ? pad.after(0.01) : pad).move(id, {x + spacing * (id - 1), 0.5 + way.y});
    return pad;
}

PadScript slide(double x, int count, double spacing = 0.05) { return row(x, count, spacing, {0, 0.05}); }

/// Finger 1 of two drifts to x and back while they slide.
PadScript drifting(double start, double x) {
    return row(start, 2).through(1, {{x, 0.5}, {start, 0.61}}).move(2, {start + 0.05, 0.61});
}

/// Fingers 1 and 2 at the left edge move from y = 0 by so much a frame.
PadScript upward(std::initializer_list<double> ways) {
    PadScript pad = PadScript().down(1, {0.1, 0}).down(2, {0.2, 0});
    double y = 0;
    for (const double way : ways) {
        y += way;
        pad.through(1, {{0.1, y}}).move(2, {0.2, y});
    }
    return pad;
}

TEST(EdgeSlideRecognizer, CountsStepsAlongAnEdge) {
    const auto fingers = [](double count) { return slide(0.05, static_cast<int>(count), 0.04); };
    expectBounds<EdgeSlideRecognizer>({
        {"left start band", [](double x) { return slide(x, 2, -0.05); }, 0.28, 0.2801, "2left2"},
        {"right start band", [](double x) { return slide(x, 2); }, 0.72, 0.7199, "2right2"},
        {"left continuation band", [](double x) { return drifting(0.1, x); }, 0.38, 0.3801, "2left4"},
        {"right continuation band", [](double x) { return drifting(0.8, x); }, 0.62, 0.6199, "2right4"},
        {"least fingers", fingers, 2, 1, "2left2"},
        {"most fingers", fingers, 5, 6, "5left2"},
        {"a step", [](double way) { return upward({way}); }, 0.025, 0.0249, "2left1"},
    });
    const PadScript three = row(0.05, 3).after(0.01);
    const PadScript lifted = PadScript(three).up(3).move(1, {0.05, 0.6}).glide({1, 2}, {0, 0.2}, 0.016);
    expectResults<EdgeSlideRecognizer>({
        {"one finger at either edge", slide(0.1, 2, 0.8), ""},
        {"a finger lifts: starts again in the frame after", lifted, "2left4"},
        {"a finger is replaced", PadScript(three).up(3).down(4, {0.1, 0.5}).through(4, {{0.1, 0.9}}), ""},
        {"a finger joins outside", PadScript(three).down(4, {0.9, 0.5}).through(1, {{0.05, 0.9}}), ""},
        {"all lift", PadScript(three).upAll().after(0.01).down(1, {0.05, 0.9}).down(2, {0.1, 0.9}), ""},
        {"a step in two parts", upward({0, 0.024, 0.002}), "2left1"},
        {"several at once leave the rest", upward({0.06, 0.014, 0.002}), "2left2 2left1"},
        {"downward", upward({-0.051, -0.023, -0.002}), "2left-2 2left-1"},
        {"turning back pays the rest first", upward({0.049, -0.04, -0.01}), "2left1 2left-1"},
        {"the mean counts", row(0.1, 2).through(1, {{0.1, 0.61}}), "2left2"},
        {"steps can still be counted", upward({1e17}), "2left4000000000000000000"},
    });
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double y : {1e18, -1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
        EdgeSlideRecognizer recognizer;
        EXPECT_EQ(run(recognizer, upward({}).through(1, {{0.1, y}})), "") << y;
        EXPECT_EQ(run(recognizer, upward({0.03})), "2left1") << "after " << y;
    }
}

const Point kTopLeft{0.1, 0.9};

PadScript anchored(Point corner, Seconds time = 0.25, Point drawing = {0.5, 0.4}) {
    return PadScript().at(0).down(1, corner).at(time).down(2, drawing);
}

/// A finger draws a line upward.
PadScript line(PadScript pad, ContactId finger = 2) { return pad.glide({finger}, {0, 0.2}, 0.2).after(0.01); }
PadScript drawUp(PadScript pad) { return line(std::move(pad)).up(2); }

/// The anchor moves to another place at 0.1; finger 2 lands later and draws.
PadScript resettledAt(Point place, Seconds time) {
    return drawUp(PadScript().at(0).down(1, {0.16, 0.9}).at(0.1).move(1, place).at(time).down(2, {0.5, 0.4}));
}

TEST(AnchorDrawRecognizer, TakesADrawingBesideAFingerInACorner) {
    const auto left = [](double x) { return drawUp(anchored({x, 0.9})); };
    const auto atTheRight = [](double y) { return drawUp(anchored({0.9, y})); };
    const auto lower = [](double y) { return drawUp(anchored({0.1, y})); };
    const auto right = [](double x) { return drawUp(anchored({x, 0.1})); };
    const auto again = [](Seconds time) {
        return drawUp(anchored(kTopLeft, 0.1).at(0.2).up(2).at(time).down(2, {0.5, 0.4}));
    };
    const auto wandering = [](double y) { return drawUp(anchored({0, 0}).through(1, {{0, y}, {0, 0}})); };
    const auto apart = [](double y) { return drawUp(anchored({0, 0}, 0.2, {0, y})); };
    const char* const up = "topLeft lineUp";
    expectBounds<AnchorDrawRecognizer>({
        {"left corner", left, 0.2, 0.2001, up},
        {"upper corner", atTheRight, 0.8, 0.7999, "topRight lineUp"},
        {"lower corner", lower, 0.2, 0.2001, "bottomLeft lineUp"},
        {"right corner", right, 0.8, 0.7999, "bottomRight lineUp"},
        {"lower right corner", atTheRight, 0.2, 0.2001, "bottomRight lineUp"},
        {"rest", [](Seconds time) { return drawUp(anchored(kTopLeft, time)); }, 0.18, 0.1799, up},
        {"duration", [](Seconds lift) { return line(anchored(kTopLeft)).at(lift).up(2); }, 3.25, 3.2501, up},
        {"distance", apart, 0.08, 0.0799, "bottomLeft lineUp"},
        {"rest after a finger that came too early", again, 0.3875, 0.37, up},
        {"movement of the anchor, there and back", wandering, 0.04, 0.0401, "bottomLeft lineUp"},
        {"rest after moving", [](Seconds time) { return resettledAt(kTopLeft, time); }, 0.29, 0.27, up},
    });
    const PadScript drawn = line(anchored(kTopLeft));
    const PadScript anchorLifts = line(anchored(kTopLeft, 0.25, {0.9, 0.7})).up(1);
    const PadScript nextDraws = line(PadScript(anchorLifts).after(0.2).down(3, {0.5, 0.4}), 3).up(3);
    const PadScript third = PadScript(drawn).down(3, {0.7, 0.5}).after(0.01).up(3).after(0.01).up(2);
    expectResults<AnchorDrawRecognizer>({
        {"no pattern", anchored(kTopLeft).glide({2}, {0, 0.1}, 0.2).after(0.01).up(2), ""},
        {"twice", drawUp(PadScript(drawn).up(2).after(0.01).down(2, {0.5, 0.4})), "topLeft lineUp topLeft lineUp"},
        {"the drawing finger came too early", drawUp(anchored(kTopLeft, 0.1)), ""},
        {"the anchor jumps with the lift", PadScript(drawn).up(2).move(1, {0.15, 0.9}), ""},
        {"the anchor leaves the corner with the lift", drawUp(anchored({0.19, 0.9})).move(1, {0.21, 0.9}), ""},
        {"a small movement keeps the anchor settled", resettledAt({0.19, 0.9}, 0.19), up},
        {"the anchor settles in another corner", resettledAt({0.1, 0.1}, 0.29), "bottomLeft lineUp"},
        {"the anchor leaves the corners", resettledAt({0.3, 0.9}, 0.29), ""},
        {"both lift at once", PadScript(drawn).upAll(), ""},
        {"a third finger", third, ""},
        {"another finger goes on drawing", PadScript(drawn).up(2).down(3, {0.5, 0.6}).after(0.01).up(3), ""},
        {"the anchor lifts first", anchorLifts, ""},
        {"the drawing finger is the next anchor in a corner", nextDraws, "topRight lineUp"},
    });
}

TEST(AnchorDrawRecognizer, HoldsThreeSecondsAtAThousandFramesButNoEndlessPath) {
    for (const auto& [points, interval] : {std::pair(2999, 0.001), {100'000, 0.0}}) {
        AnchorDrawRecognizer recognizer;
        recognizer.process(TouchSamples{{1, {0.1, 0.1}}}, 0);
        for (int i = 0; i < points; ++i)
            recognizer.process(TouchSamples{{1, {0.1, 0.1}}, {2, {0.5, 0.5 + 0.005 * i}}}, 1 + i * interval);
        EXPECT_EQ(recognizer.process(TouchSamples{{1, {0.1, 0.1}}}, 1 + points * interval).has_value(), points == 2999);
    }
}

}  // namespace
}  // namespace kinesta::testing
