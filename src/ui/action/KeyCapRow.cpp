#include "ui/action/KeyCapRow.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kHeight = 24;
constexpr double kNarrowest = 26;
constexpr double kSlot = 30;
constexpr double kPadding = 8;
constexpr double kTightPadding = 6;
constexpr double kGap = 6;
constexpr double kTightGap = 4;
constexpr double kRadius = 6;
constexpr int kEdge = 1;
constexpr int kLowerEdge = 2;

QFont capFont() { return Unit::font(0.92, QFont::DemiBold); }

}  // namespace

KeyCapRow::KeyCapRow(QWidget* parent) : QWidget(parent) {
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void KeyCapRow::setCaps(std::vector<KeyCap> caps, Look look, End end) {
    m_caps = std::move(caps);
    m_look = look;
    m_end = end;
    updateGeometry();
    update();
}

QString KeyCapRow::textOf(const KeyCap& cap, Content content) const {
    QString sign = QString::fromStdString(cap.sign);
    QString word = QString::fromStdString(cap.word);
    const QFontMetrics metrics(capFont());
    const auto characters = sign.toUcs4();
    const bool isDrawable = std::all_of(characters.begin(), characters.end(),
                                        [&](uint character) { return metrics.inFontUcs4(character); });
    if (sign.isEmpty() || !isDrawable)
        return word;
    if (!cap.showsWord || content == Content::signs)
        return sign;
    return content == Content::words ? word : sign + QLatin1Char(' ') + word;
}

int KeyCapRow::gap(Content content) { return Unit::of(content == Content::signsAndWords ? kGap : kTightGap); }

int KeyCapRow::widthOf(const KeyCap& cap, Content content) const {
    const int padding = Unit::of(content == Content::signsAndWords ? kPadding : kTightPadding);
    const int text = QFontMetrics(capFont()).horizontalAdvance(textOf(cap, content));
    return std::max(Unit::of(kNarrowest), text + 2 * padding);
}

int KeyCapRow::wholeWidth(Content content) const {
    int width = m_end == End::emptySlot ? Unit::of(kSlot) + gap(content) : 0;
    for (const KeyCap& cap : m_caps)
        width += widthOf(cap, content) + gap(content);
    return std::max(0, width - gap(content));
}

KeyCapRow::Content KeyCapRow::fittingContent() const {
    for (const Content content : {Content::signsAndWords, Content::words})
        if (wholeWidth(content) <= width())
            return content;
    return Content::signs;
}

QSize KeyCapRow::sizeHint() const { return {wholeWidth(Content::signsAndWords), Unit::of(kHeight)}; }

QSize KeyCapRow::minimumSizeHint() const { return {wholeWidth(Content::signs), Unit::of(kHeight)}; }

void KeyCapRow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void KeyCapRow::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setFont(capFont());
    const bool isHeld = m_look == Look::held;
    const QColor edge = asQColor(isHeld ? theme.accent : theme.line);
    const QColor face = asQColor(isHeld ? theme.accent : theme.surface);
    const QColor ink = asQColor(isHeld ? theme.onAccent : isEnabled() ? theme.text : theme.line);
    const double radius = Unit::of(kRadius);
    const int height = Unit::of(kHeight);
    const Content content = fittingContent();
    const bool isMirrored = parentWidget() != nullptr && parentWidget()->layoutDirection() == Qt::RightToLeft;
    int x = isMirrored ? width() - wholeWidth(content) : 0;
    for (const KeyCap& cap : m_caps) {
        const QRectF box(x, 0, widthOf(cap, content), height);
        const QRectF top = box.adjusted(kEdge, kEdge, -kEdge, -kLowerEdge);
        painter.setPen(Qt::NoPen);
        painter.setBrush(edge);
        painter.drawRoundedRect(box, radius, radius);
        painter.setBrush(face);
        painter.drawRoundedRect(top, radius - kEdge, radius - kEdge);
        painter.setPen(ink);
        painter.drawText(top, Qt::AlignCenter | Qt::TextSingleLine, textOf(cap, content));
        x += static_cast<int>(box.width()) + gap(content);
    }
    if (m_end == End::plain)
        return;
    constexpr double kPen = 1.5;
    QPen pen(asQColor(theme.accent), kPen);
    pen.setDashPattern({2, 2});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(x, 0, Unit::of(kSlot), height).adjusted(kPen / 2, kPen / 2, -kPen / 2, -kPen / 2),
                            radius, radius);
}

}  // namespace kinesta
