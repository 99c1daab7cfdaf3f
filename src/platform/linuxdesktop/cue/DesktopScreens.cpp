#include "platform/linuxdesktop/cue/DesktopScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>
#include <utility>

#include "platform/qt/ScreenCoordinates.h"

namespace kinesta {
namespace {

/// The frame in pixels: Qt scales the size of a screen and leaves its corner where it is.
WindowRectangle inPixels(const QScreen& screen) {
    const QRect frame = screen.geometry();
    const auto scaled = [&screen](int length) {
        return static_cast<int>(std::lround(length * screen.devicePixelRatio()));
    };
    return {frame.x(), frame.y(), scaled(frame.width()), scaled(frame.height())};
}

Screen describe(const QScreen& screen, const std::vector<EwmhMonitor>& monitors) {
    const WindowRectangle pixels = inPixels(screen);
    const QRectF frame = screen.geometry();
    QRectF area = screen.availableGeometry();
    for (const EwmhMonitor& monitor : monitors) {
        const WindowRectangle part = monitor.workArea.intersection(pixels);
        // The size of a screen with a fractional scale is rounded, so its monitor may be a pixel larger.
        if (part.isEmpty() || std::abs(monitor.bounds.x - pixels.x) > 1 || std::abs(monitor.bounds.y - pixels.y) > 1)
            continue;
        const double scale = screen.devicePixelRatio();
        area = {frame.x() + (part.x - pixels.x) / scale, frame.y() + (part.y - pixels.y) / scale, part.width / scale,
                part.height / scale};
    }
    return {fromQt(frame), fromQt(area)};
}

}  // namespace

DesktopScreens::DesktopScreens(Monitors monitors) : m_monitors(std::move(monitors)) {}

std::vector<Screen> DesktopScreens::screens() const {
    const std::vector<EwmhMonitor> monitors = m_monitors();
    std::vector<Screen> all;
    for (const QScreen* screen : QGuiApplication::screens())
        all.push_back(describe(*screen, monitors));
    return all;
}

std::optional<Screen> DesktopScreens::mainScreen() const {
    const QScreen* main = QGuiApplication::primaryScreen();
    return main != nullptr ? std::optional(describe(*main, m_monitors())) : std::nullopt;
}

std::optional<Point> DesktopScreens::pointerLocation() const {
    const QPoint pointer = QCursor::pos();
    // The pixel under the pointer reaches one further down, and its lower edge is the one that counts upward.
    return Point{static_cast<double>(pointer.x()), mainScreenBottom() - pointer.y() - 1};
}

}  // namespace kinesta
