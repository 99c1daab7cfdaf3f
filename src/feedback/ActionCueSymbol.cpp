#include "feedback/ActionCueSymbol.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace kinesta {
namespace {

constexpr double kSide = 16;
constexpr double kStroke = 1.5;
constexpr double kDot = 1.1;
/// Keys of the keyboard and entries of the window's side bar.
constexpr double kSmallDot = 0.75;

Shape stroked(Path path) { return {std::move(path), kStroke}; }
Shape stroked(std::string_view text) { return stroked(Path::parse(text)); }
Shape filled(std::string_view text) { return {Path::parse(text)}; }
Shape dot(Point centre, double radius) { return {Path::circle(centre, radius)}; }
Shape window() { return stroked(Path::box(1.75, 2.75, 12.5, 10.5, 2)); }

std::vector<Shape> shapesOf(ActionKind kind) {
    switch (kind) {
        case ActionKind::unconfigured:
            return {dot({3.5, 8}, kDot), dot({8, 8}, kDot), dot({12.5, 8}, kDot)};
        case ActionKind::keyboardShortcut:
            return {stroked(Path::box(1.75, 3.75, 12.5, 8.5, 2)),
                    dot({4.6, 6.6}, kSmallDot),
                    dot({7.2, 6.6}, kSmallDot),
                    dot({9.8, 6.6}, kSmallDot),
                    dot({11.9, 6.6}, kSmallDot),
                    stroked("M5.75 9.5h4.5")};
        case ActionKind::middleClick:
            return {stroked(Path::box(4, 1.75, 8, 12.5, 4)), {Path::parse("M8 4.75v2.5"), 2.2}};
        case ActionKind::closeWindow:
            return {window(), stroked("M6 6l4 4M10 6l-4 4")};
        case ActionKind::openURL:
            return {stroked(Path::circle({8, 8}, 6.25)), stroked(Path::ellipse({8, 8}, 2.75, 6.25)),
                    stroked("M1.75 8h12.5")};
        case ActionKind::openFileOrFolder:
            return {
                stroked("M1.75 11.75v-7.5a1.5 1.5 0 0 1 1.5-1.5h2.5l2 2h5a1.5 1.5 0 0 1 1.5 1.5v5.5a1.5 1.5 0 0 "
                        "1-1.5 1.5h-9.5a1.5 1.5 0 0 1-1.5-1.5z")};
        case ActionKind::launchApplication:
            return {stroked(Path::box(2, 2, 12, 12, 3)), filled("M6.6 5.4v5.2L10.7 8z")};
        case ActionKind::shellCommand:
            return {window(), stroked("M4.75 6l2 2-2 2M8.75 10.25h2.75")};
        case ActionKind::toggleConfigurationWindow:
            return {window(), stroked("M6.25 2.75v10.5"), dot({3.9, 5.75}, kSmallDot), dot({3.9, 8}, kSmallDot)};
        case ActionKind::disableAllRules:
            return {stroked("M5 4.25A5.25 5.25 0 1 0 11 4.25M8 1.75v5.5")};
        case ActionKind::adjustVolume:
            return {stroked("M2 6.25v3.5h2.25L7.5 12.5v-9L4.25 6.25z"), stroked("M10 6.25a2.5 2.5 0 0 1 0 3.5"),
                    stroked("M12 4.25a5.3 5.3 0 0 1 0 7.5")};
    }
    return {};
}

}  // namespace

const Picture& actionCueSymbol(ActionKind kind) {
    static std::array<Picture, static_cast<std::size_t>(ActionKind::adjustVolume) + 1> made;
    Picture& picture = made.at(static_cast<std::size_t>(kind));
    if (picture.shapes.empty())
        picture = {kSide, kSide, shapesOf(kind)};
    return picture;
}

}  // namespace kinesta
