#include "ui/trying/LivePadPainter.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/qt/ThemePalette.h"
#include "recognition/EdgeSlideRecognizer.h"
#include "ui/pictures/PadGesture.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kRadius = 24;
constexpr double kOutline = 1.5;
constexpr double kLip = 5;
constexpr double kMargin = 10;

constexpr double kBandOpacity = 0.11;
constexpr double kPalmOpacity = 0.20;
constexpr double kCornerOpacity = 0.8;
constexpr double kHitOpacity = 0.16;

constexpr double kDisc = 12.5;
constexpr double kHalo = 21;
constexpr double kHaloOpacity = 0.18;
constexpr double kRing = 13;
constexpr double kRingLine = 4.5;
constexpr double kRingHalo = 17;
constexpr double kPalmRing = 11;
constexpr double kPalmLine = 2;
constexpr double kPalmRingOpacity = 0.75;
constexpr double kLiftedOpacity = 0.5;

constexpr double kThinTrail = 2.5;
constexpr double kThickTrail = 7.5;
constexpr double kFaintTrail = 0.30;
constexpr double kStrongTrail = 0.90;

constexpr double kPillWidth = 22;
constexpr double kPillHeight = 18;
constexpr double kPillPadding = 6;
constexpr double kPillDistance = 32;
constexpr double kPillFont = 0.85;
constexpr double kGesturePillHeight = 24;
constexpr double kGesturePillTop = 12;

QPen line(const QColor& colour, double width) { return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

QPen dashed(const QColor& colour, double width, double dash, double gap) {
    QPen pen(colour, width, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({dash / width, gap / width});
    return pen;
}

QColor mixed(const QColor& over, const QColor& ground, double share) {
    const auto part = [share](float a, float b) { return std::lerp(b, a, static_cast<float>(share)); };
    return QColor::fromRgbF(part(over.redF(), ground.redF()), part(over.greenF(), ground.greenF()),
                            part(over.blueF(), ground.blueF()));
}

QFont pillFont() { return Unit::font(kPillFont, QFont::DemiBold); }

}  // namespace

LivePadPainter::LivePadPainter(const QRectF& pad, const AppTheme& theme)
    : m_pad(pad), m_theme(theme), m_unit(Unit::pixels()) {}

double LivePadPainter::margin() { return kMargin * Unit::pixels(); }

double LivePadPainter::lip() { return kLip * Unit::pixels(); }

QPointF LivePadPainter::at(Point point) const {
    return {m_pad.left() + point.x * m_pad.width(), m_pad.top() + (1 - point.y) * m_pad.height()};
}

QColor LivePadPainter::paper() const { return mixed(asQColor(m_theme.canvas), asQColor(m_theme.surface), 0.5); }

QPainterPath LivePadPainter::outline(double inset) const {
    const double radius = kRadius * m_unit - inset;
    QPainterPath path;
    path.addRoundedRect(m_pad.adjusted(inset, inset, -inset, -inset), radius, radius);
    return path;
}

QRectF LivePadPainter::corner(bool isLeft, bool isTop, double side) const {
    const QSizeF size(side * m_pad.width(), side * m_pad.height());
    return {QPointF(isLeft ? m_pad.left() : m_pad.right() - size.width(),
                    isTop ? m_pad.top() : m_pad.bottom() - size.height()),
            size};
}

void LivePadPainter::paintGround(QPainter& painter, const CornerPalmRejectionSettings& palms) const {
    const double half = kOutline * m_unit / 2;
    painter.fillPath(outline(half).translated(0, lip()), asQColor(m_theme.lip));
    painter.fillPath(outline(half), paper());
    painter.save();
    painter.setClipPath(outline(half));
    const QColor accent = asQColor(m_theme.accent);
    const double band = EdgeSlideRecognizer::Limits{}.edgeInset * m_pad.width();
    painter.setOpacity(kBandOpacity);
    painter.fillRect(QRectF(m_pad.left(), m_pad.top(), band, m_pad.height()), accent);
    painter.fillRect(QRectF(m_pad.right() - band, m_pad.top(), band, m_pad.height()), accent);
    for (const bool isLeft : {true, false})
        for (const bool isTop : {true, false}) {
            if (palms.isEnabled) {
                painter.setOpacity(kPalmOpacity);
                painter.fillRect(corner(isLeft, isTop, palms.cornerInset()), asQColor(m_theme.caution));
            }
            painter.setOpacity(kCornerOpacity);
            painter.setPen(dashed(accent, m_unit, 3 * m_unit, 4 * m_unit));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(corner(isLeft, isTop, LivePadModel::kRest.cornerInset));
        }
    painter.restore();
    painter.strokePath(outline(half), line(asQColor(m_theme.line), 2 * half));
}

void LivePadPainter::paintOff(QPainter& painter) const {
    const double half = kOutline * m_unit / 2;
    painter.strokePath(outline(half), line(asQColor(m_theme.line), 2 * half));
    const QLineF stroke(at({.16, -.03}), at({.84, 1.03}));
    painter.setPen(line(asQColor(m_theme.surface), 8 * m_unit));
    painter.drawLine(stroke);
    painter.setPen(line(asQColor(m_theme.line), 2.25 * m_unit));
    painter.drawLine(stroke);
}

void LivePadPainter::paintTouch(QPainter& painter, const LiveTouch& touch) const {
    const QPointF middle = at(touch.at);
    const auto disc = [&](double radius) { painter.drawEllipse(middle, radius * m_unit, radius * m_unit); };
    const QColor accent = asQColor(m_theme.accent);
    painter.save();
    painter.setClipPath(outline(), Qt::IntersectClip);
    painter.setOpacity(touch.opacity);
    paintTrail(painter, touch);
    const bool isStill = touch.form == LiveTouch::Form::still;
    if (touch.form == LiveTouch::Form::palm) {
        painter.setOpacity(kPalmRingOpacity);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(dashed(asQColor(m_theme.caution), kPalmLine * m_unit, 3 * m_unit, 3 * m_unit));
        disc(kPalmRing);
    } else {
        const double opacity = touch.form == LiveTouch::Form::lifted ? touch.opacity * kLiftedOpacity : 1;
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        painter.setOpacity(opacity * kHaloOpacity);
        disc(isStill ? kRingHalo : kHalo);
        painter.setOpacity(opacity);
        if (isStill) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(line(accent, kRingLine * m_unit));
        }
        disc(isStill ? kRing : kDisc);
    }
    painter.restore();
    if (touch.form != LiveTouch::Form::lifted)
        paintPill(painter, idPill(touch), QString::number(touch.id), asQColor(m_theme.text), asQColor(m_theme.surface));
}

/// Every segment covers the end of the one before, so that no joint shows.
void LivePadPainter::paintTrail(QPainter& painter, const LiveTouch& touch) const {
    const auto count = touch.trail.size();
    for (std::size_t i = 1; i < count; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count - 1);
        const QColor ink = mixed(asQColor(m_theme.accent), paper(), std::lerp(kFaintTrail, kStrongTrail, part));
        painter.setPen(line(ink, std::lerp(kThinTrail, kThickTrail, part) * m_unit));
        painter.drawLine(at(touch.trail[i - 1]), at(touch.trail[i]));
    }
}

void LivePadPainter::paintGesture(QPainter& painter, const LiveGesture& gesture) const {
    painter.save();
    painter.setClipPath(outline(kOutline * m_unit), Qt::IntersectClip);
    painter.setOpacity(gesture.opacity * kHitOpacity);
    for (const QRectF& zone : zones(gesture))
        painter.fillRect(zone, asQColor(m_theme.accent));
    painter.restore();
    painter.setOpacity(gesture.opacity);
    const QRectF box = gesturePill(gesture);
    const QFontMetricsF metrics(pillFont());
    const QString text =
        metrics.elidedText(QString::fromStdString(gesture.text), Qt::ElideRight, box.width() - kPillPadding * m_unit);
    paintPill(painter, box, text, asQColor(m_theme.accent), asQColor(m_theme.onAccent));
    painter.setOpacity(1);
}

/// Where on the pad the gesture belongs.
std::vector<QRectF> LivePadPainter::zones(const LiveGesture& gesture) const {
    if (const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture.gesture)) {
        const double band = EdgeSlideRecognizer::Limits{}.edgeInset * m_pad.width();
        const double left = slide->side == EdgeSlideSide::left ? m_pad.left() : m_pad.right() - band;
        return {{left, m_pad.top(), band, m_pad.height()}};
    }
    if (const auto* draw = std::get_if<DetectedAnchorDraw>(&gesture.gesture))
        return {corner(PadGeometry::isLeft(draw->corner), PadGeometry::isTop(draw->corner),
                       LivePadModel::kRest.cornerInset)};
    return {};
}

/// Around `middle`, but on the pad.
QRectF LivePadPainter::pill(QPointF middle, const QString& text, QSizeF least) const {
    const double words = QFontMetricsF(pillFont()).horizontalAdvance(text) + 2 * kPillPadding * m_unit;
    const double gap = 4 * m_unit;
    QSizeF size(std::min(std::max(least.width(), words), m_pad.width() - 2 * gap), least.height());
    size.setHeight(std::max(size.height(), QFontMetricsF(pillFont()).height()));
    QRectF box({}, size);
    box.moveCenter(middle);
    box.moveLeft(std::clamp(box.left(), m_pad.left() + gap, m_pad.right() - gap - size.width()));
    return box;
}

QRectF LivePadPainter::idPill(const LiveTouch& touch) const {
    const QPointF finger = at(touch.at);
    const double above = finger.y() - kPillDistance * m_unit;
    const bool fits = above - kPillHeight * m_unit / 2 > m_pad.top() + 4 * m_unit;
    return pill({finger.x(), fits ? above : finger.y() + kPillDistance * m_unit}, QString::number(touch.id),
                {kPillWidth * m_unit, kPillHeight * m_unit});
}

QRectF LivePadPainter::gesturePill(const LiveGesture& gesture) const {
    const double height = kGesturePillHeight * m_unit;
    return pill({m_pad.center().x(), m_pad.top() + kGesturePillTop * m_unit + height / 2},
                QString::fromStdString(gesture.text), {height * 2, height});
}

void LivePadPainter::paintPill(QPainter& painter, const QRectF& box, const QString& text, const QColor& ground,
                               const QColor& ink) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
    painter.setFont(pillFont());
    painter.setPen(ink);
    constexpr char16_t kFirstStrongIsolate = 0x2068;  // words keep their own direction
    painter.drawText(box, Qt::AlignCenter, QChar(kFirstStrongIsolate) + text);
}

QRectF LivePadPainter::bounds(const LiveTouch& touch) const {
    const double room = (kHalo + 1) * m_unit;
    const QPointF finger = at(touch.at);
    QRectF box(finger.x() - room, finger.y() - room, 2 * room, 2 * room);
    const double half = (kThickTrail / 2 + 1) * m_unit;
    for (const Point& point : touch.trail) {
        const QPointF step = at(point);
        box |= QRectF(step.x() - half, step.y() - half, 2 * half, 2 * half);
    }
    return touch.form == LiveTouch::Form::lifted ? box : box | idPill(touch).adjusted(-1, -1, 1, 1);
}

QRectF LivePadPainter::bounds(const LiveGesture& gesture) const {
    QRectF box = gesturePill(gesture).adjusted(-1, -1, 1, 1);
    for (const QRectF& zone : zones(gesture))
        box |= zone;
    return box;
}

}  // namespace kinesta
