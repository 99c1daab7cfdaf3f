#include "ui/widgets/Tile.h"

#include <QEvent>
#include <QFontMetrics>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Ground.h"
#include "ui/widgets/PadPainter.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kRadius = 8;
constexpr double kGap = 8;
constexpr double kSmallGap = 5;
constexpr double kTop = 9;
constexpr double kTallHeight = 84;
constexpr double kFlatHeight = 36;
constexpr double kCardWidth = 104;
constexpr double kSide = 4;
constexpr double kTallSide = 2;

Tile::Paint gesturePaint(double width, const PadGesture& gesture) {
    return [width, gesture](QPainter& painter, QPointF at, const AppTheme& theme) {
        PadPainter::paintStill(painter, at, gesture, Unit::of(width), theme);
    };
}

}  // namespace

Tile::Tile(Form form, const QString& word, const QString& title, QSizeF picture, Paint paint)
    : m_form(form), m_picture(picture), m_paint(std::move(paint)) {
    setText(word);
    setAccessibleName(title);
    setToolTip(title == word ? QString() : title);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

Tile* Tile::ofGesture(Form form, const QString& word, const QString& title, double width, const PadGesture& gesture) {
    return new Tile(form, word, title, {width, width * PadGeometry::padHeight}, gesturePaint(width, gesture));
}

void Tile::setPaint(Paint paint) {
    m_paint = std::move(paint);
    update();
}

void Tile::setGesture(double width, const PadGesture& gesture) { setPaint(gesturePaint(width, gesture)); }

QSize Tile::pictureSize() const { return Unit::of(m_picture.width(), m_picture.height()); }

int Tile::side() const { return Unit::of(m_form == Form::tall ? kTallSide : kSide); }

QFont Tile::wordFont(bool isChosen) const {
    return Unit::font(m_form == Form::tall ? 0.88 : 0.92, isChosen ? QFont::DemiBold : QFont::Medium);
}

bool Tile::isPictureAbove() const { return m_form != Form::flat || (m_isAbove && !text().isEmpty()); }

void Tile::setPictureAbove(bool isAbove, int lines) {
    m_isAbove = isAbove;
    m_lines = lines;
    updateGeometry();
    update();
}

int Tile::widthBeside() const {
    const int words = text().isEmpty() ? 0 : Unit::of(kGap) + QFontMetrics(wordFont(true)).horizontalAdvance(text());
    return pictureSize().width() + words + 2 * Unit::of(kGap);
}

int Tile::linesIn(int width) const {
    // The bold words, so that choosing moves nothing.
    const QFontMetrics metrics(wordFont(true));
    const QRect room(0, 0, width - 2 * side(), QWIDGETSIZE_MAX);
    // There is no leading below the last line.
    const int height = metrics.boundingRect(room, Qt::TextWordWrap, text()).height() + metrics.leading();
    return std::max(1, (height + metrics.lineSpacing() / 2) / metrics.lineSpacing());
}

QSize Tile::minimumSizeHint() const {
    const QFontMetrics metrics(wordFont(true));
    const QSize picture = pictureSize();
    // Words break between lines, and inside only where a soft hyphen allows it.
    int widest = picture.width();
    static const QRegularExpression breaks(QStringLiteral("[ \u00AD]"));
    const QStringList words = text().split(breaks);
    for (const QString& word : words)
        widest = std::max(widest, metrics.horizontalAdvance(word));
    const int width = widest + 2 * side();
    if (!isPictureAbove())
        return {width, std::max(Unit::of(kFlatHeight), picture.height() + Unit::of(kGap))};
    const int lines = std::max(m_lines, m_form == Form::tall ? 2 : 1);
    const int above = Unit::of(kTop) + picture.height() + Unit::of(kSmallGap);
    const int height = above + lines * metrics.lineSpacing() + Unit::of(kSide);
    return {width, m_form == Form::tall ? std::max(Unit::of(kTallHeight), height) : height};
}

QSize Tile::sizeHint() const {
    const QSize smallest = minimumSizeHint();
    if (m_form == Form::card) {
        const int word = QFontMetrics(wordFont(true)).horizontalAdvance(text()) + 2 * side();
        return {std::max({Unit::of(kCardWidth), smallest.width(), word}), smallest.height()};
    }
    return m_form == Form::tall ? smallest : QSize(widthBeside(), smallest.height());
}

bool Tile::event(QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        m_ring.follow(*static_cast<QFocusEvent*>(event));
        update();
    }
    return QAbstractButton::event(event);
}

void Tile::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = Unit::of(kRadius);
    Ground::paintChoice(painter, rect(), radius, {isChecked(), isDown(), underMouse() && isEnabled()}, theme);

    painter.setFont(wordFont(isChecked()));
    const QFontMetrics metrics = painter.fontMetrics();
    const QSize picture = pictureSize();
    QRect words = rect().adjusted(side(), 0, -side(), 0);
    QPoint at;
    int flags = Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignTop;
    if (isPictureAbove()) {
        at = {(width() - picture.width()) / 2, Unit::of(kTop)};
        words.setTop(at.y() + picture.height() + Unit::of(kSmallGap));
    } else {
        const int gap = text().isEmpty() ? 0 : Unit::of(kGap);
        const int whole = picture.width() + gap + (gap > 0 ? metrics.horizontalAdvance(text()) : 0);
        at = {(width() - whole) / 2, (height() - picture.height()) / 2};
        words.setLeft(at.x() + picture.width() + gap);
        flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine;
        if (layoutDirection() == Qt::RightToLeft) {
            at.setX(width() - at.x() - picture.width());
            words = QRect(side(), 0, at.x() - gap - side(), height());
            flags = Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute | Qt::TextSingleLine;
        }
    }
    painter.setOpacity(isEnabled() ? 1 : 0.45);
    if (m_paint)
        m_paint(painter, at, theme);
    painter.setOpacity(1);
    painter.setPen(asQColor(isEnabled() ? theme.text : theme.line));
    painter.drawText(words, flags | Qt::TextDontClip, text());
    if (m_ring.isShown()) {
        // Inside the edge of the choice, so that both are seen.
        const int inset = isChecked() ? 3 : 0;
        m_ring.paint(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset);
    }
}

}  // namespace kinesta
