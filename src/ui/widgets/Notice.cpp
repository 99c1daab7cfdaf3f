#include "ui/widgets/Notice.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/AccessibleParts.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSymbol = 18;
constexpr double kInset = 16;
constexpr double kPadding = 12;
constexpr double kGap = 10;

}  // namespace

Notice::Notice(Kind kind, const QString& title, const QString& detail, QWidget* parent)
    : QWidget(parent),
      m_kind(kind),
      m_title(new Words({}, Words::Size::section)),
      m_detail(new Words({}, Words::Size::detail)),
      m_line(new QHBoxLayout(this)) {
    AccessibleParts::install();
    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addWidget(m_title);
    words->addWidget(m_detail);
    m_line->addLayout(words, 1);
    setWords(title, detail);
    measure();
}

void Notice::measure() {
    const int padding = Unit::of(kPadding);
    const int side = Unit::of(kInset);
    const int words = side + Unit::of(kSymbol + kGap);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_line->setContentsMargins(isMirrored ? side : words, padding, isMirrored ? words : side, padding);
    m_line->setSpacing(Unit::of(kGap));
}

void Notice::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void Notice::setWords(const QString& title, const QString& detail) {
    m_title->setText(title);
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
    setAccessibleName(title);
    setAccessibleDescription(detail);
}

void Notice::setControl(QWidget* control) { m_line->addWidget(control, 0, Qt::AlignVCenter); }

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

void Notice::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Notice::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    const double side = Unit::of(kSymbol);
    const double inset = Unit::of(kInset);
    const double x = layoutDirection() == Qt::RightToLeft ? width() - inset - side : inset;
    // Beside the first line of the title.
    const double y = m_title->y() + (QFontMetricsF(m_title->font()).height() - side) / 2;
    const Rgb ink = m_kind == Kind::plain ? theme.accent : m_kind == Kind::caution ? theme.caution : theme.danger;
    const auto symbol = m_kind == Kind::plain ? WindowSymbol::information : WindowSymbol::caution;
    PicturePainter::paint(painter, {x, y, side, side}, windowSymbol(symbol), asQColor(ink));
}

}  // namespace kinesta
