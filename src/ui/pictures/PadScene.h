#pragma once

#include <vector>

#include "ui/pictures/PadGesture.h"

namespace kinesta {

/// What a pad shows at one moment, in the coordinates of the pad. Opacities are 0…1.
struct PadScene {
    struct Finger {
        Point at;
        double opacity = 1;
        double scale = 1;
        /// Rests while another finger acts.
        bool isResting = false;
    };

    /// The ring that spreads where a finger came down.
    struct Ripple {
        Point at;
        /// 0…1, from the landing until it is gone.
        double progress = 0;
    };

    enum class Ground { paper, unset, struckThrough };

    Ground ground = Ground::paper;
    std::vector<Finger> fingers;
    /// Not around fingers that stand close together or on a line.
    bool hasHalos = true;
    std::vector<Ripple> ripples;
    /// How deep the pad is pressed: 0 not at all, 1 to the first click, 2 to the second.
    double press = 0;
    /// How far it has gone down: 0 not at all, 2 to its lower edge. A still picture shows a pressed pad at its height.
    double sunk = 0;
    /// The right part is pressed deep, the left one softly: a click of any pressure.
    double split = 0;
    /// The opacities of the bars that count repetitions; none for gestures without.
    std::vector<double> bars;
    double arrowUp = 0;
    double arrowDown = 0;
    /// The part of the pattern that is drawn.
    double drawn = 0;
    double drawnOpacity = 1;
    double head = 0;

    /// The picture of a gesture that is not being performed.
    static PadScene still(const PadGesture& gesture);
    /// The scene with everything on its pad at `opacity`.
    PadScene faded(double opacity) const;
};

}  // namespace kinesta
