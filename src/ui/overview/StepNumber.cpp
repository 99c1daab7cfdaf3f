#include "ui/overview/StepNumber.h"

#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kSide = 24;
constexpr double kEdge = 1.5;
constexpr double kTick = 14;

}  // namespace

StepNumber::StepNumber(int number, QWidget* parent) : QWidget(parent), m_number(number) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setState(State::later);
}

void StepNumber::setState(State state) {
    m_state = state;
    setAccessibleName(state == State::done ? tr("Step %1, done").arg(m_number) : tr("Step %1").arg(m_number));
    update();
}

QSize StepNumber::sizeHint() const { return Unit::of(kSide, kSide); }

void StepNumber::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(rect());
    const double edge = kEdge * Unit::pixels();
    const Rgb ink = m_state == State::done ? theme.positive : m_state == State::now ? theme.accent : theme.line;
    painter.setPen(QPen(asQColor(ink), edge));
    painter.setBrush(m_state == State::now ? QBrush(asQColor(theme.accent)) : QBrush(Qt::NoBrush));
    painter.drawEllipse(box.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2));
    if (m_state == State::done) {
        const double inset = (box.width() - Unit::of(kTick)) / 2;
        return PicturePainter::paint(painter, box.adjusted(inset, inset, -inset, -inset),
                                     windowSymbol(WindowSymbol::tick), asQColor(theme.positive));
    }
    painter.setPen(asQColor(m_state == State::now ? theme.onAccent : theme.text2));
    painter.setFont(Unit::font(0.92, QFont::DemiBold));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_number));
}

}  // namespace kinesta
