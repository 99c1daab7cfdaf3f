#include "ui/pictures/GesturePerformance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace kinesta {
namespace {

constexpr double kLand = 90;
constexpr double kLift = 90;
constexpr double kRipple = 320;
constexpr double kEmpty = 500;
constexpr double kIntoStill = 160;
constexpr double kRest = 900;
constexpr double kFirstPress = 260;
constexpr double kLiftAfterPress = 170;
constexpr double kRestingLands = 120;
constexpr double kFirstTipTap = 420;
constexpr double kRestingLiftsAfter = 400;
constexpr double kDrawingLands = 400;
constexpr double kSlideLifts = 1900;

double part(double time, double from, double until) { return std::clamp((time - from) / (until - from), 0.0, 1.0); }

double outCubic(double t) { return 1 - std::pow(1 - t, 3); }

double inOutQuad(double t) { return t < 0.5 ? 2 * t * t : 1 - 2 * (1 - t) * (1 - t); }

/// A finger that lands at one time and lifts at another.
void place(PadScene& scene, PadScene::Finger finger, double time, double lands, double lifts, double landing = kLand) {
    if (time < lands || time >= lifts + kLift)
        return;
    const double down = outCubic(part(time, lands, lands + landing));
    finger.scale = 1.35 - 0.35 * down;
    finger.opacity = down * (1 - part(time, lifts, lifts + kLift));
    scene.fingers.push_back(finger);
}

void ripple(PadScene& scene, Point at, double time, double lands) {
    if (time >= lands && time < lands + kRipple)
        scene.ripples.push_back({at, (time - lands) / kRipple});
}

/// The depth of a press at steps (time, depth), with straight ramps between them.
template <std::size_t N>
double depth(double time, const std::array<std::array<double, 2>, N>& steps) {
    double result = 0;
    for (std::size_t i = 1; i < N; ++i)
        if (time >= steps[i - 1][0])
            result = std::lerp(steps[i - 1][1], steps[i][1], part(time, steps[i - 1][0], steps[i][0]));
    return result;
}

// A press from its begin. A single one is slow enough to be understood, repeated ones are as fast as a person's.
constexpr std::array<std::array<double, 2>, 4> kSlowSoft{{{0, 0}, {60, 1}, {160, 1}, {220, 0}}};
constexpr std::array<std::array<double, 2>, 6> kSlowDeep{{{0, 0}, {60, 1}, {160, 1}, {240, 2}, {360, 2}, {430, 0}}};
constexpr std::array<std::array<double, 2>, 4> kFastSoft{{{0, 0}, {60, 1}, {110, 1}, {170, 0}}};
constexpr std::array<std::array<double, 2>, 5> kFastDeep{{{0, 0}, {50, 1}, {110, 1}, {160, 2}, {220, 0}}};

constexpr double clickTime(bool isDeep) { return isDeep ? 240 : 210; }

}  // namespace

GesturePerformance::GesturePerformance(const PadGesture& gesture, double tapWaitingInterval)
    : m_gesture(gesture), m_tapTime(std::floor(85 * tapWaitingInterval + 0.5) * 10) {
    if (gesture.kind == GestureKind::unconfigured)
        m_cycles = 0;
}

PadScene GesturePerformance::at(double time) const {
    PadScene still = PadScene::still(m_gesture);
    if (time < 0 || time >= duration())
        return still;
    const bool isFirst = time < cycle();
    const double inCycle = isFirst ? time : time - cycle();
    const double stillBegins = cycle() - kRest - kIntoStill;
    if (inCycle < stillBegins)
        return performed(inCycle, m_gesture.isAnyClick() ? !isFirst : still.press > 1);
    // Marks that stand on the pad already do not fade again.
    const double in = part(inCycle, stillBegins, stillBegins + kIntoStill);
    // Before the second time the picture goes as it came: fingers that vanish at once look like a fault.
    const double out = isFirst ? part(inCycle, cycle() - kIntoStill, cycle()) : 0;
    PadScene scene = still.faded(in * (1 - out));
    if (out == 0) {
        const PadScene marks = performed(stillBegins, false);
        scene.bars = marks.bars;
        scene.head = marks.head;
        scene.drawnOpacity = 1;
        scene.arrowUp = std::lerp(marks.arrowUp, still.arrowUp, in);
        scene.arrowDown = std::lerp(marks.arrowDown, still.arrowDown, in);
    }
    return scene;
}

double GesturePerformance::cycle() const {
    const int repeats = m_gesture.repetitions() - 1;
    double performance = 0;
    if (m_gesture.isTap())
        performance = repeats * m_tapTime + kRipple;
    else if (isPhysicalClick(m_gesture.kind))
        performance =
            pressEnd(physicalClickPressure(m_gesture.kind) != PhysicalClickPressure::soft) + kLiftAfterPress + kLift;
    else if (m_gesture.isTipTap())
        performance = kFirstTipTap + repeats * m_tapTime + kRestingLiftsAfter + kLift;
    else if (m_gesture.kind == GestureKind::edgeSlide)
        performance = kSlideLifts + kLift;
    else
        performance = kDrawingLands + kLand + drawingTime() + 2 * kLift;
    return performance + kEmpty + kIntoStill + kRest;
}

PadScene GesturePerformance::performed(double time, bool isDeep) const {
    PadScene scene;
    if (m_gesture.isTap())
        tap(scene, time);
    else if (isPhysicalClick(m_gesture.kind))
        click(scene, time, isDeep);
    else if (m_gesture.isTipTap())
        tipTap(scene, time);
    else if (m_gesture.kind == GestureKind::edgeSlide)
        slide(scene, time);
    else
        draw(scene, time);
    return scene;
}

/// One more bar from each begin of a repetition.
void GesturePerformance::light(PadScene& scene, double sinceFirst, double each) const {
    const int count = m_gesture.repetitions();
    for (int i = 0; count > 1 && i < count; ++i)
        scene.bars.push_back(sinceFirst >= i * each ? 1 : 0.25);
}

void GesturePerformance::tap(PadScene& scene, double time) const {
    light(scene, time, m_tapTime);
    const double held = std::min(110.0, m_tapTime / 2);
    for (int k = 0; k < m_gesture.repetitions(); ++k) {
        const double lands = k * m_tapTime;
        for (const Point& at : PadGeometry::actingFingers(m_gesture)) {
            ripple(scene, at, time, lands);
            place(scene, {at}, time, lands, lands + held);
        }
    }
}

double GesturePerformance::pressEnd(bool isDeep) const {
    const int count = m_gesture.repetitions();
    if (count == 1)
        return kFirstPress + (isDeep ? kSlowDeep.back()[0] : kSlowSoft.back()[0]);
    return kFirstPress + (count - 1) * clickTime(isDeep) + (isDeep ? kFastDeep.back()[0] : kFastSoft.back()[0]);
}

void GesturePerformance::click(PadScene& scene, double time, bool isDeep) const {
    const int count = m_gesture.repetitions();
    const double each = clickTime(isDeep);
    light(scene, time - kFirstPress, each);
    for (const Point& at : PadGeometry::actingFingers(m_gesture)) {
        ripple(scene, at, time, 0);
        place(scene, {at}, time, 0, pressEnd(isDeep) + kLiftAfterPress);
    }
    for (int k = 0; k < count; ++k) {
        const double since = time - kFirstPress - k * each;
        const double slow = isDeep ? depth(since, kSlowDeep) : depth(since, kSlowSoft);
        const double fast = isDeep ? depth(since, kFastDeep) : depth(since, kFastSoft);
        scene.press = std::max(scene.press, count == 1 ? slow : fast);
    }
    scene.sunk = scene.press;
}

void GesturePerformance::tipTap(PadScene& scene, double time) const {
    light(scene, time - kFirstTipTap, m_tapTime);
    const double last = kFirstTipTap + (m_gesture.repetitions() - 1) * m_tapTime;
    if (const auto resting = PadGeometry::restingFinger(m_gesture))
        place(scene, {*resting, 1, 1, true}, time, 0, last + kRestingLiftsAfter, kRestingLands);
    const double held = std::min(110.0, m_tapTime / 2);
    const Point at = PadGeometry::actingFingers(m_gesture).front();
    for (int k = 0; k < m_gesture.repetitions(); ++k) {
        const double lands = kFirstTipTap + k * m_tapTime;
        ripple(scene, at, time, lands);
        place(scene, {at}, time, lands, lands + held);
    }
}

void GesturePerformance::slide(PadScene& scene, double time) const {
    const double reach = PadGeometry::slideReach(m_gesture.fingers);
    const double moved =
        inOutQuad(part(time, 200, 650)) - 2 * inOutQuad(part(time, 650, 1350)) + inOutQuad(part(time, 1350, 1800));
    for (Point at : PadGeometry::actingFingers(m_gesture)) {
        ripple(scene, at, time, 0);
        at.y += reach * moved;
        place(scene, {at}, time, 0, kSlideLifts);
    }
    const bool isDown = time >= 650 && time < 1350;
    scene.arrowUp = isDown ? 0.35 : 1;
    scene.arrowDown = isDown ? 1 : 0.35;
}

double GesturePerformance::drawingTime() const {
    using enum DrawPattern;
    if (!m_gesture.pattern)
        return 0;
    switch (*m_gesture.pattern) {
        case lShape:
        case vShape:
            return 620;
        case zigzag:
            return 760;
        case circleClockwise:
        case circleCounterclockwise:
            return 820;
        default:
            return 420;
    }
}

void GesturePerformance::draw(PadScene& scene, double time) const {
    const double begin = kDrawingLands + kLand;
    const double end = begin + drawingTime();
    if (const auto resting = PadGeometry::restingFinger(m_gesture))
        place(scene, {*resting, 1, 1, true}, time, 0, end + kLift, kRestingLands);
    if (!m_gesture.pattern)
        return;
    scene.drawn = part(time, begin, end);
    scene.head = part(time, end + kLift, end + 2 * kLift);
    const Point start = PadGeometry::actingFingers(m_gesture).front();
    ripple(scene, start, time, kDrawingLands);
    place(scene, {PadGeometry::drawnPattern(m_gesture, scene.drawn).back()}, time, kDrawingLands, end);
}

}  // namespace kinesta
