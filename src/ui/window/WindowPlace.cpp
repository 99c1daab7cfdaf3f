#include "ui/window/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <sstream>

namespace kinesta {
namespace {

constexpr int kLargest = 32767;

/// The part of the screens that the window would be on, or the first one.
QRect workAreaFor(const QRect& wanted) {
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? wanted : screen->availableGeometry();
}

}  // namespace

std::optional<int> WindowPlace::restore(QWidget& window) const {
    std::istringstream stored(m_defaults.string(storageKey).value_or(""));
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int sidebar = 0;
    std::string state;
    if (!(stored >> x >> y >> width >> height >> sidebar) || width < 1 || height < 1 || width > kLargest ||
        height > kLargest || std::max(std::abs(x), std::abs(y)) > kLargest)
        return std::nullopt;
    stored >> state;
    QRect box(x, y, width, height);
    const QRect area = workAreaFor(box);
    box.setSize(box.size().boundedTo(area.size()).expandedTo(window.minimumSize()));
    box.moveLeft(std::clamp(x, area.left(), std::max(area.left(), area.right() + 1 - box.width())));
    box.moveTop(std::clamp(y, area.top(), std::max(area.top(), area.bottom() + 1 - box.height())));
    window.setGeometry(box);
    if (state == "maximized")
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    return sidebar;
}

void WindowPlace::save(const QWidget& window, int sidebar) {
    const bool isMaximized = window.isMaximized() || window.isFullScreen();
    const QRect box = isMaximized ? window.normalGeometry() : window.geometry();
    std::ostringstream text;
    text << box.x() << ' ' << box.y() << ' ' << box.width() << ' ' << box.height() << ' ' << sidebar;
    if (isMaximized)
        text << " maximized";
    if (m_defaults.string(storageKey) != text.str())
        m_defaults.setString(storageKey, text.str());
}

}  // namespace kinesta
