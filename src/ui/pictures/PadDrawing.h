#pragma once

#include <optional>
#include <vector>

#include "support/Picture.h"
#include "ui/pictures/PadScene.h"

namespace kinesta {

/// A drawing in colours of the theme: layers, the lowest first.
struct PadDrawing {
    enum class Ink { accent, surface, line, lip, pressSoft, erase };

    struct Layer {
        Path path;
        Ink ink = Ink::accent;
        double opacity = 1;
        /// Width of the stroke; 0 fills the path.
        double stroke = 0;
        /// Nothing outside of it is painted; empty for everything.
        std::optional<Path> clip = std::nullopt;
        /// Lengths of a dash and of the gap after it; {0, 0} for an unbroken line.
        Point dashes = {};
    };

    /// The pad without its lower edge. Layers may stand out over it by at most `margin`.
    double width = 0;
    double height = 0;
    double margin = 0;
    std::vector<Layer> layers;

    /// The scene of a gesture on a pad `width` wide. Below 48 fingers have no halo, from 96 on the pad has a lower
    /// edge.
    static PadDrawing of(const PadGesture& gesture, const PadScene& scene, double width);
    /// The figure of a pattern alone, in a square.
    static PadDrawing figure(DrawPattern pattern, double side);
    /// The margin around a pad of this width.
    static double marginOf(double width);
    /// How high the pad of this width is with its lower edge.
    static double heightWithLip(double width);
};

}  // namespace kinesta
