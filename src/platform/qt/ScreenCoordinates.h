#pragma once

#include <QGuiApplication>
#include <QRectF>
#include <QScreen>

#include "support/Rectangle.h"

namespace kinesta {

/// The lower edge of the main screen as Qt counts, downward; 0 without a screen. Our y grows upward from there.
inline double mainScreenBottom() {
    const QScreen* main = QGuiApplication::primaryScreen();
    return main != nullptr ? QRectF(main->geometry()).bottom() : 0;
}

inline Rectangle fromQt(const QRectF& frame) {
    return {frame.x(), mainScreenBottom() - frame.bottom(), frame.width(), frame.height()};
}

}  // namespace kinesta
