#include "ui/widgets/PadPicture.h"

#include <QPainter>
#include <chrono>
#include <cmath>

#include "ui/widgets/AccessibleParts.h"
#include "ui/widgets/PadPainter.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr std::chrono::milliseconds kFrame{16};

}  // namespace

PadPicture::PadPicture(double width, QWidget* parent) : QWidget(parent), m_width(width) {
    AccessibleParts::install();
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, [this] {
        if (m_performance && static_cast<double>(m_since.elapsed()) >= m_performance->duration())
            rest();
        update();
    });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PadPicture::setGesture(const PadGesture& gesture) {
    if (gesture == m_gesture)
        return;
    m_gesture = gesture;
    rest();
}

void PadPicture::setStruckThrough(bool isStruckThrough) {
    m_isStruckThrough = isStruckThrough;
    rest();
}

void PadPicture::setPadWidth(double width) {
    m_width = width;
    updateGeometry();
    update();
}

void PadPicture::perform(double tapWaitingInterval) {
    rest();
    if (!isVisible() || m_isStruckThrough || WindowTheme::reducesMotion())
        return;
    m_performance.emplace(m_gesture, tapWaitingInterval);
    m_since.start();
    m_frames.start(kFrame);
}

void PadPicture::rest() {
    m_frames.stop();
    m_performance.reset();
    update();
}

double PadPicture::padWidth() const { return Unit::of(m_width); }

QSize PadPicture::sizeHint() const {
    return {Unit::of(m_width), static_cast<int>(std::ceil(PadDrawing::heightWithLip(padWidth())))};
}

void PadPicture::hideEvent(QHideEvent* event) {
    rest();
    QWidget::hideEvent(event);
}

void PadPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const AppTheme& theme = WindowTheme::current();
    const QSize size = sizeHint();
    const QPointF at((width() - size.width()) / 2.0, (height() - size.height()) / 2.0);
    if (m_isStruckThrough) {
        PadScene off;
        off.ground = PadScene::Ground::struckThrough;
        return PadPainter::paint(painter, at, PadDrawing::of(m_gesture, off, padWidth()), theme);
    }
    if (!m_performance)
        return PadPainter::paintStill(painter, at, m_gesture, padWidth(), theme);
    const PadScene scene = m_performance->at(static_cast<double>(m_since.elapsed()));
    PadPainter::paint(painter, at, PadDrawing::of(m_gesture, scene, padWidth()), theme);
}

}  // namespace kinesta
