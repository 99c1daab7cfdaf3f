#include "ui/settings/PalmPicture.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

#include "input/CornerPalmRejectionSettings.h"
#include "platform/qt/ThemePalette.h"
#include "recognition/AnchorDrawRecognizer.h"
#include "ui/pictures/PadDrawing.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kWidth = 160;
constexpr double kEdge = 1.5;
constexpr double kRadius = 0.1;
constexpr double kFill = 0.42;
constexpr double kDashes = 0.75;
constexpr double kDash = 3;

/// The four corners of a pad, each `part` of its width and height.
std::array<QRectF, 4> corners(const QRectF& pad, double part) {
    const QSizeF size(part * pad.width(), part * pad.height());
    const double right = pad.right() - size.width();
    const double bottom = pad.bottom() - size.height();
    return {QRectF(pad.topLeft(), size), QRectF({right, pad.top()}, size), QRectF({pad.left(), bottom}, size),
            QRectF({right, bottom}, size)};
}

}  // namespace

PalmPicture::PalmPicture(QWidget* parent) : QWidget(parent), m_inset(CornerPalmRejectionSettings().cornerInset()) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PalmPicture::setSensitivity(double sensitivity) {
    m_inset = CornerPalmRejectionSettings{.isEnabled = true, .sensitivity = sensitivity}.cornerInset();
    update();
}

QSize PalmPicture::sizeHint() const {
    const int width = Unit::of(kWidth);
    return {width, static_cast<int>(std::ceil(PadDrawing::heightWithLip(width)))};
}

void PalmPicture::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    const QColor line = asQColor(theme.line);
    const QColor ink = isEnabled() ? asQColor(theme.accent) : line;
    const double width = Unit::of(kWidth);
    const QRectF pad(0, 0, width, width * PadGeometry::padHeight);
    const double lip = PadDrawing::heightWithLip(width) - pad.height();
    const QRectF edge = pad.adjusted(kEdge / 2, kEdge / 2, -kEdge / 2, -kEdge / 2);
    const double radius = kRadius * width;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(asQColor(theme.lip));
    painter.drawRoundedRect(edge.translated(0, lip), radius, radius);
    QPainterPath paper;
    paper.addRoundedRect(edge, radius, radius);
    painter.fillPath(paper, asQColor(theme.surface));
    painter.setClipPath(paper);
    painter.setOpacity(kFill);
    for (const QRectF& corner : corners(pad, m_inset))
        painter.fillRect(corner, ink);
    painter.setOpacity(kDashes);
    QPen dashes(ink, 1);
    dashes.setDashPattern({kDash, kDash});
    painter.setPen(dashes);
    painter.setBrush(Qt::NoBrush);
    for (const QRectF& corner : corners(pad, AnchorDrawRecognizer::Limits().cornerInset))
        painter.drawRect(corner);
    painter.setClipping(false);
    painter.setOpacity(1);
    painter.setPen({line, kEdge});
    painter.drawPath(paper);
}

}  // namespace kinesta
