#include "ui/pictures/WindowSymbol.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace kinesta {
namespace {

constexpr double kSide = 16;
constexpr double kStroke = 1.5;
constexpr double kDot = 1.1;

Shape stroked(Path path) { return {std::move(path), kStroke}; }
Shape stroked(std::string_view text) { return stroked(Path::parse(text)); }
Shape filled(std::string_view text) { return {Path::parse(text)}; }
Shape dot(double x, double y, double radius = kDot) { return {Path::circle({x, y}, radius)}; }
Shape disc() { return stroked(Path::circle({8, 8}, 6.25)); }

std::vector<Shape> shapesOf(WindowSymbol symbol) {
    switch (symbol) {
        case WindowSymbol::caution:
            return {stroked("M8 2.2L14.6 13.4H1.4z"), stroked("M8 6.4v3.2"), dot(8, 11.4, 0.9)};
        case WindowSymbol::clash:
            return {stroked("M2 5h8.5M8 2.5L10.5 5 8 7.5"), stroked("M14 11H5.5M8 8.5L5.5 11 8 13.5")};
        case WindowSymbol::tick:
            return {stroked("M3.2 8.6l3.1 3.1 6.5-7")};
        case WindowSymbol::works:
            return {disc(), stroked("M5.2 8.2l2 2 3.7-4")};
        case WindowSymbol::fails:
            return {disc(), stroked("M5.8 5.8l4.4 4.4M10.2 5.8l-4.4 4.4")};
        case WindowSymbol::information:
            return {disc(), stroked("M8 7.4v3.6"), dot(8, 4.9, 0.9)};
        case WindowSymbol::overview:
            return {stroked(Path::box(1.75, 3, 12.5, 10, 2.25)), dot(5.2, 8.6), dot(8, 7), dot(10.8, 7.9)};
        case WindowSymbol::settings:
            return {stroked("M2 4.75h5.5M11.5 4.75H14"), stroked("M2 11.25h2.5M8.5 11.25H14"),
                    stroked(Path::circle({9.5, 4.75}, 1.9)), stroked(Path::circle({6.5, 11.25}, 1.9))};
        case WindowSymbol::add:
            return {stroked("M8 3v10M3 8h10")};
        case WindowSymbol::more:
            return {dot(3.5, 8), dot(8, 8), dot(12.5, 8)};
        case WindowSymbol::search:
            return {stroked(Path::circle({7, 7}, 4.5)), stroked("M10.4 10.4L14 14")};
        case WindowSymbol::play:
            return {filled("M5.2 3.4v9.2L12.4 8z")};
        case WindowSymbol::run:
            return {stroked("M5.2 3.4v9.2L12.4 8z")};
        case WindowSymbol::copy:
            return {stroked(Path::box(5.25, 5.25, 8.5, 8.5, 2)),
                    stroked("M10.75 3.5V3.25a1.5 1.5 0 0 0-1.5-1.5h-6a1.5 1.5 0 0 0-1.5 1.5v6a1.5 1.5 0 0 0 1.5 "
                            "1.5h.25")};
        case WindowSymbol::clear:
            return {stroked("M4 4l8 8M12 4l-8 8")};
        case WindowSymbol::grip:
            return {dot(6, 4, 0.9),  dot(10, 4, 0.9), dot(6, 8, 0.9),
                    dot(10, 8, 0.9), dot(6, 12, 0.9), dot(10, 12, 0.9)};
        case WindowSymbol::chevronDown:
            return {stroked("M4.5 6.25L8 9.75l3.5-3.5")};
        case WindowSymbol::chevronLeft:
            return {stroked("M9.75 4.5L6.25 8l3.5 3.5")};
        case WindowSymbol::chevronRight:
            return {stroked("M6.25 4.5L9.75 8l-3.5 3.5")};
        case WindowSymbol::chevrons:
            return {stroked("M5 6.2L8 3.4l3 2.8"), stroked("M5 9.8l3 2.8 3-2.8")};
        case WindowSymbol::repeat:
            return {stroked("M3 7v-.5a2 2 0 0 1 2-2h7.5"), stroked("M10.5 2.2l2.3 2.3-2.3 2.3"),
                    stroked("M13 9v.5a2 2 0 0 1-2 2H3.5"), stroked("M5.5 13.8l-2.3-2.3 2.3-2.3")};
        case WindowSymbol::wave:
            return {stroked("M1.75 8.5c1.5 0 1.6-4 3-4c1.4 0 1.6 7.5 3.2 7.5c1.6 0 1.6-6 3-6c1.4 0 1.4 2.5 3.3 2.5")};
    }
    return {};
}

}  // namespace

const Picture& windowSymbol(WindowSymbol symbol) {
    static std::array<Picture, static_cast<std::size_t>(WindowSymbol::wave) + 1> made;
    Picture& picture = made.at(static_cast<std::size_t>(symbol));
    if (picture.shapes.empty())
        picture = {kSide, kSide, shapesOf(symbol)};
    return picture;
}

}  // namespace kinesta
