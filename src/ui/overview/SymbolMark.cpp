#include "ui/overview/SymbolMark.h"

#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

/// The part of a disc that the symbol takes.
constexpr double kOnDisc = 0.62;

}  // namespace

SymbolMark::SymbolMark(double side, QWidget* parent) : QWidget(parent), m_side(side) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolMark::setSymbol(WindowSymbol symbol, Ink ink, const QString& name) {
    m_symbol = symbol;
    m_ink = ink;
    setAccessibleName(name);
    update();
}

void SymbolMark::setDisc(Ink ink) {
    m_disc = ink;
    update();
}

QSize SymbolMark::sizeHint() const { return Unit::of(m_side, m_side); }

void SymbolMark::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    QRectF box(rect());
    if (m_disc != nullptr) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(asQColor(theme.*m_disc));
        painter.drawEllipse(box);
        const double inset = box.width() * (1 - kOnDisc) / 2;
        // A triangle looks centred when it is a little higher.
        box.adjust(inset, inset * 0.85, -inset, -inset * 1.15);
    }
    PicturePainter::paint(painter, box, windowSymbol(m_symbol), asQColor(theme.*m_ink));
}

}  // namespace kinesta
