#include "ui/sidebar/PageRow.h"

#include <QKeyEvent>
#include <QStyle>
#include <algorithm>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/sidebar/RowPainter.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kHeight = 36;
constexpr double kSymbol = 16;
constexpr double kPadding = 10;

}  // namespace

PageRow::PageRow(WindowSymbol symbol, const QString& name, QWidget* parent)
    : QAbstractButton(parent), m_symbol(symbol) {
    setText(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PageRow::setShown(bool isShown) {
    m_isShown = isShown;
    setAccessibleDescription(isShown ? tr("Selected") : QString());
    update();
}

QSize PageRow::sizeHint() const {
    const QFontMetrics metrics(Unit::font(1, QFont::DemiBold));
    return {Unit::of(3 * kPadding + kSymbol) + metrics.horizontalAdvance(text()),
            std::max(Unit::of(kHeight), metrics.height() + Unit::of(kPadding))};
}

bool PageRow::event(QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        m_ring.follow(*static_cast<QFocusEvent*>(event));
        update();
    } else if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
    return QAbstractButton::event(event);
}

void PageRow::keyPressEvent(QKeyEvent* event) {
    m_ring.show();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        return click();
    QAbstractButton::keyPressEvent(event);
}

void PageRow::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    RowPainter::paintGround(painter, rect(), {m_isShown, underMouse(), m_isShown, layoutDirection()});
    const int padding = Unit::of(kPadding);
    const int side = Unit::of(kSymbol);
    const QRect symbol(padding, (height() - side) / 2, side, side);
    PicturePainter::paint(painter, QStyle::visualRect(layoutDirection(), rect(), symbol), windowSymbol(m_symbol),
                          asQColor(m_isShown ? theme.accent : theme.text2));
    const QRect words = rect().adjusted(symbol.right() + 1 + padding, 0, -padding, 0);
    painter.setPen(asQColor(theme.text));
    RowPainter::paintWords(painter, QStyle::visualRect(layoutDirection(), rect(), words),
                           Unit::font(1, m_isShown ? QFont::DemiBold : QFont::Medium), text(), layoutDirection());
    m_ring.paint(painter, rect(), RowPainter::radius());
}

}  // namespace kinesta
