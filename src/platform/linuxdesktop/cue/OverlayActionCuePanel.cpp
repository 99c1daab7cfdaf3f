#include "platform/linuxdesktop/cue/OverlayActionCuePanel.h"

#include <cmath>
#include <utility>

#include "platform/qt/ScreenCoordinates.h"

namespace kinesta {

OverlayActionCuePanel::OverlayActionCuePanel()
    : m_compositor([this] { m_window.setCompositor(m_compositor.isActive()); }) {
    m_window.setCompositor(m_compositor.isActive());
    m_fade.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&m_fade, &QVariantAnimation::valueChanged, &m_window,
                     [this](const QVariant& value) { m_window.setAlpha(value.toDouble()); });
    QObject::connect(&m_fade, &QVariantAnimation::finished, &m_window, [this] { std::exchange(m_done, {})(); });
}

void OverlayActionCuePanel::setOrigin(Point origin) {
    m_window.move(static_cast<int>(std::lround(origin.x)),
                  static_cast<int>(std::lround(mainScreenBottom() - origin.y - height)));
}

void OverlayActionCuePanel::setAlpha(double alpha) {
    m_fade.stop();
    m_window.setAlpha(alpha);
}

void OverlayActionCuePanel::orderFront() {
    m_window.show();
    m_window.raise();
}

void OverlayActionCuePanel::orderOut() {
    m_fade.stop();
    m_window.hide();
}

void OverlayActionCuePanel::animateAlpha(double alpha, Seconds duration, std::function<void()> done) {
    m_fade.stop();
    if (alpha == m_window.alpha() || duration <= 0) {
        m_window.setAlpha(alpha);
        return done();
    }
    m_done = std::move(done);
    m_fade.setStartValue(m_window.alpha());
    m_fade.setEndValue(alpha);
    m_fade.setDuration(static_cast<int>(std::lround(duration * 1000)));
    m_fade.start();
}

}  // namespace kinesta
