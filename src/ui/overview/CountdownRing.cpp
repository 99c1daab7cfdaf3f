#include "ui/overview/CountdownRing.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSide = 28;
constexpr double kStroke = 2.5;
constexpr int kMostSeconds = 5;
constexpr int kTurn = 360 * 16;

}  // namespace

CountdownRing::CountdownRing(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CountdownRing::setSeconds(std::optional<int> seconds) {
    if (seconds == m_seconds)
        return;
    m_seconds = seconds;
    setAccessibleName(!seconds ? QString() : *seconds == 1 ? tr("1 second left") : tr("%1 seconds left").arg(*seconds));
    update();
}

QSize CountdownRing::sizeHint() const { return Unit::of(kSide, kSide); }

void CountdownRing::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double stroke = kStroke * Unit::pixels();
    // As in the design, the ring ends 3 before the edge.
    const double inset = 3 * Unit::pixels();
    const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(asQColor(theme.lip), stroke));
    painter.drawEllipse(ring);
    if (!m_seconds)
        return;
    painter.setPen(QPen(asQColor(theme.accent), stroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, kTurn / 4, kTurn * std::clamp(*m_seconds, 0, kMostSeconds) / kMostSeconds);
    painter.setPen(asQColor(theme.text));
    painter.setFont(Unit::font(0.85, QFont::DemiBold));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(*m_seconds));
}

}  // namespace kinesta
