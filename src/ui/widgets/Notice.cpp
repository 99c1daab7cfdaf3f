#include "ui/widgets/Notice.h"

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/widgets/AccessibleParts.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSymbol = 18;
constexpr double kInset = 16;
constexpr double kPadding = 12;
constexpr double kGap = 10;
constexpr double kGapBelow = 7;
/// The words keep at least this share of the notice beside its control.
constexpr double kWordsShare = 0.4;
constexpr int kMotion = 160;

WindowSymbol symbolOf(Notice::Kind kind) {
    return kind == Notice::Kind::plain ? WindowSymbol::information : WindowSymbol::caution;
}

}  // namespace

Notice::Notice(Kind kind, const QString& title, const QString& detail, QWidget* parent)
    : QWidget(parent),
      m_kind(kind),
      m_symbol(symbolOf(kind)),
      m_title(new Words({}, Words::Size::section)),
      m_detail(new Words({}, Words::Size::detail)),
      m_line(new QHBoxLayout(this)) {
    AccessibleParts::install();
    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(m_title);
    words->addWidget(m_detail);
    m_detail->hide();
    m_line->addLayout(words, 1);
    m_motion.setDuration(kMotion);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    m_motion.setStartValue(0.0);
    m_motion.setEndValue(1.0);
    connect(&m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant& part) { grow(part.toDouble()); });
    setWords(title, detail);
    measure();
}

void Notice::setKind(Kind kind) {
    m_kind = kind;
    setSymbol(symbolOf(kind));
    if (parentWidget() != nullptr)
        parentWidget()->update();  // the ground is the card's
}

void Notice::setSymbol(WindowSymbol symbol) {
    m_symbol = symbol;
    update();
}

void Notice::measure() {
    const int padding = Unit::of(kPadding);
    const int side = Unit::of(kInset);
    const int words = side + Unit::of(kSymbol + kGap);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_line->setContentsMargins(isMirrored ? side : words, padding, isMirrored ? words : side, padding);
    place();
}

void Notice::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void Notice::setWords(const QString& title, const QString& detail) {
    if (title == m_title->text() && detail == m_detail->text())
        return;
    m_title->setText(title);
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
    setAccessibleName(title);
    setAccessibleDescription(detail);
    if (isVisible())
        announce();
}

void Notice::setControl(QWidget* control) {
    m_control = control;
    m_line->addWidget(control, 0, Qt::AlignVCenter);
    place();
}

void Notice::place() {
    const QMargins margins = m_line->contentsMargins();
    const double inner = width() - margins.left() - margins.right();
    const int wanted = m_control != nullptr ? m_control->sizeHint().width() + Unit::of(kGap) : 0;
    const bool isBelow = wanted > inner * (1 - kWordsShare);
    m_line->setSpacing(Unit::of(isBelow ? kGapBelow : kGap));
    m_line->setDirection(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (m_control != nullptr)
        m_line->setAlignment(m_control, isBelow ? Qt::AlignLeading : Qt::AlignVCenter);
}

void Notice::slideIn() {
    const bool isSeen = isHidden() && parentWidget() != nullptr && parentWidget()->isVisible();
    show();
    if (!isSeen || WindowTheme::reducesMotion())
        return;
    setGraphicsEffect(new QGraphicsOpacityEffect(this));
    grow(0);
    m_motion.start();
}

void Notice::grow(double part) {
    auto* effect = static_cast<QGraphicsOpacityEffect*>(graphicsEffect());
    if (part >= 1 || effect == nullptr) {
        setGraphicsEffect(nullptr);
        return setMaximumHeight(QWIDGETSIZE_MAX);
    }
    effect->setOpacity(part);
    const int across = width() > 0 ? width() : sizeHint().width();
    setMaximumHeight(static_cast<int>(part * m_line->totalHeightForWidth(across)));
}

QColor Notice::ground(const AppTheme& theme) const {
    switch (m_kind) {
        case Kind::plain:
            return asQColor(theme.accentSoft);
        case Kind::caution:
            return asQColor(theme.cautionSoft);
        case Kind::error:
            return asQColor(theme.dangerSoft);
    }
    return {};
}

void Notice::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

void Notice::setVisible(bool isVisible) {
    const bool isNew = isVisible && isHidden();
    QWidget::setVisible(isVisible);
    // What stands on a page that opens is read with it.
    if (isNew && this->isVisible())
        announce();
}

void Notice::hideEvent(QHideEvent* event) {
    m_motion.stop();
    grow(1);
    QWidget::hideEvent(event);
}

void Notice::announce() { Announcer::announce(*this, (accessibleName() + u' ' + accessibleDescription()).trimmed()); }

void Notice::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    const double side = Unit::of(kSymbol);
    const double inset = Unit::of(kInset);
    const double x = layoutDirection() == Qt::RightToLeft ? width() - inset - side : inset;
    // Beside the first line of the title.
    const double y = m_title->y() + (QFontMetricsF(m_title->font()).height() - side) / 2;
    const Rgb ink = m_kind == Kind::plain ? theme.accent : m_kind == Kind::caution ? theme.caution : theme.danger;
    PicturePainter::paint(painter, {x, y, side, side}, windowSymbol(m_symbol), asQColor(ink));
}

}  // namespace kinesta
