#pragma once

#include <string_view>
#include <vector>

#include "support/Point.h"

namespace kinesta {

/// Lines and cubic curves, in the units of the picture: x to the right, y downward.
struct Path {
    struct Segment {
        enum class Kind { move, line, curve, close };

        Kind kind;
        /// The end point; for a curve two control points, then the end point; none for close.
        Point points[3] = {};
    };

    std::vector<Segment> segments;

    /// Reads path text with the letters M L H V C A Z, lower case for coordinates relative to the last point. Arcs
    /// become curves. Aborts on bad text: all texts are constants of this program.
    static Path parse(std::string_view text);
    static Path box(double x, double y, double width, double height, double radius);
    static Path ellipse(Point centre, double radiusX, double radiusY);
    static Path circle(Point centre, double radius) { return ellipse(centre, radius, radius); }
    static Path line(Point from, Point to);
};

/// One stroke or area of a picture.
struct Shape {
    enum class Ink {
        colour,
        /// Makes what was drawn before transparent again.
        erase
    };

    Path path;
    /// Width of the round stroke; 0 fills the path.
    double stroke = 0;
    Ink ink = Ink::colour;
};

/// A drawing in one colour, for any painter.
struct Picture {
    double width = 0;
    double height = 0;
    std::vector<Shape> shapes;
};

}  // namespace kinesta
