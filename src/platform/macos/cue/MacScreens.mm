#include "platform/macos/cue/MacScreens.h"

#include <AppKit/AppKit.h>

#include <cmath>
#include <limits>

namespace kinesta {
namespace {

Rectangle rectangle(NSRect rect) { return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height}; }

Screen describe(NSScreen* screen) { return {rectangle(screen.frame), rectangle(screen.visibleFrame)}; }

}  // namespace

std::vector<Screen> MacScreens::screens() const {
    std::vector<Screen> all;
    for (NSScreen* screen in NSScreen.screens)
        all.push_back(describe(screen));
    return all;
}

std::optional<Screen> MacScreens::mainScreen() const {
    NSScreen* const screen = NSScreen.mainScreen;  // the one with the key window (from memory)
    return screen ? std::optional(describe(screen)) : std::nullopt;
}

std::optional<Point> MacScreens::pointerLocation() const {
    const NSPoint location = NSEvent.mouseLocation;
    // The upper edge of the pixel under the pointer: in the uppermost row it is the edge of the screen, which our
    // rectangles leave to the neighbour (from memory).
    return Point{location.x, std::nextafter(location.y, -std::numeric_limits<double>::infinity())};
}

}  // namespace kinesta
