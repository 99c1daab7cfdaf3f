#include "app/TrayIcon.h"

namespace kinesta::TrayIcon {
namespace {

constexpr double kStroke = 1.5;

}  // namespace

Picture image(bool isEnabled) {
    Picture picture{23, 18, {{Path::box(2.25, 2.25, 18.5, 13.5, 3), kStroke}}};
    if (isEnabled) {
        for (const Point finger : {Point{7.2, 10}, Point{11.4, 7.3}, Point{15.8, 8.7}})
            picture.shapes.push_back({Path::circle(finger, 1.75)});
    } else {
        picture.shapes.push_back({Path::line({3.5, 16.9}, {19.5, 1.1}), 5, Shape::Ink::erase});
        picture.shapes.push_back({Path::line({4, 16.4}, {19, 1.6}), kStroke});
    }
    return picture;
}

}  // namespace kinesta::TrayIcon
