#include "ui/window/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <sstream>

namespace kinesta {
namespace {

constexpr int kLargest = 32767;

/// The work area of the screen at `point`, or of the first one; empty while no screen is on.
QRect workAreaAt(const QPoint& point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QRect() : screen->availableGeometry();
}

QRect within(const QRect& area, QRect box, const QSize& smallest) {
    if (area.isEmpty())
        return box;
    box.setSize(box.size().boundedTo(area.size()).expandedTo(smallest));
    box.moveLeft(std::clamp(box.x(), area.left(), std::max(area.left(), area.right() + 1 - box.width())));
    box.moveTop(std::clamp(box.y(), area.top(), std::max(area.top(), area.bottom() + 1 - box.height())));
    return box;
}

}  // namespace

std::optional<WindowPlace::Stored> WindowPlace::stored() const {
    std::istringstream text(m_defaults.string(storageKey).value_or(""));
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int sidebar = 0;
    std::string state;
    if (!(text >> x >> y >> width >> height >> sidebar) || width < 1 || height < 1 || width > kLargest ||
        height > kLargest || std::min(x, y) < -kLargest || std::max(x, y) > kLargest)
        return std::nullopt;
    text >> state;
    return Stored{.box = QRect(x, y, width, height), .sidebar = sidebar, .isMaximized = state == "maximized"};
}

std::optional<int> WindowPlace::restore(QWidget& window) const {
    const auto place = stored();
    if (!place) {
        QRect area = workAreaAt({});
        area.setTop(area.top() + window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
        window.resize(within(area, window.geometry(), window.minimumSize()).size());
        return std::nullopt;
    }
    window.setGeometry(within(workAreaAt(place->box.center()), place->box, window.minimumSize()));
    if (place->isMaximized)
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    return place->sidebar;
}

void WindowPlace::save(const QWidget& window, int sidebar) {
    const bool isMaximized = window.isMaximized() || window.isFullScreen();
    QRect box = isMaximized ? window.normalGeometry() : window.geometry();
    // Some window managers resize before they tell the new state: then the normal geometry is that of the screen.
    if (const auto before = stored(); isMaximized && before)
        box = before->box;
    if (const QScreen* screen = window.screen(); isMaximized && QGuiApplication::screenAt(box.center()) != screen)
        box = within(screen->availableGeometry(), box, window.minimumSize());
    std::ostringstream text;
    text << box.x() << ' ' << box.y() << ' ' << box.width() << ' ' << box.height() << ' ' << sidebar;
    if (isMaximized)
        text << " maximized";
    if (m_defaults.string(storageKey) != text.str())
        m_defaults.setString(storageKey, text.str());
}

void WindowPlace::bringBack(QWidget& window) {
    const QRect frame = window.frameGeometry();
    if (QGuiApplication::screenAt({frame.center().x(), frame.top()}) == nullptr && !window.isMaximized() &&
        !window.isFullScreen())
        window.setGeometry(within(workAreaAt(frame.center()), window.geometry(), window.minimumSize()));
}

}  // namespace kinesta
