#include "ui/sidebar/CautionLine.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/sidebar/RowPainter.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr std::chrono::seconds kStay{6};
constexpr int kMotion = 160;
constexpr double kAbove = 2;
constexpr double kBelow = 4;
constexpr double kPadding = 10;
constexpr double kPaddingAbove = 7;
constexpr double kSymbol = 15;
constexpr double kGap = 8;
constexpr double kWords = 0.92;
constexpr int kHighest = 10000;

QAccessibleInterface* makeAccessible(const QString& name, QObject* object) {
    if (name != QLatin1String(CautionLine::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::AlertMessage);
}

}  // namespace

CautionLine::CautionLine(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(&makeAccessible);
    setAttribute(Qt::WA_TransparentForMouseEvents);  // the wheel turns the list
    hide();
    m_staying.setSingleShot(true);
    m_staying.setInterval(kStay);
    connect(&m_staying, &QTimer::timeout, this, &CautionLine::dismiss);
    m_motion.setDuration(kMotion);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    m_motion.setStartValue(0.0);
    m_motion.setEndValue(1.0);
    connect(&m_motion, &QVariantAnimation::valueChanged, this, &CautionLine::roomChanged);
}

void CautionLine::tell(const QString& sentence) {
    setAccessibleName(sentence);
    m_staying.start();
    m_motion.stop();
    m_motion.start();
    if (WindowTheme::reducesMotion())
        m_motion.setCurrentTime(kMotion);
    Q_EMIT roomChanged();
    Announcer::announce(*this, sentence);
}

void CautionLine::dismiss() {
    if (isHidden() && !isTelling())
        return;
    m_staying.stop();
    m_motion.stop();
    hide();
    Q_EMIT dismissed();
}

QRect CautionLine::wordsIn(const QRect& line) const {
    const int padding = Unit::of(kPadding);
    const int left = padding + Unit::of(kSymbol + kGap);
    const int above = Unit::of(kPaddingAbove);
    return QStyle::visualRect(layoutDirection(), line, line.adjusted(left, above, -padding, -above));
}

int CautionLine::room(int width) const {
    const QRect words = wordsIn({0, 0, width, kHighest});
    const QRect needed =
        QFontMetrics(Unit::font(kWords)).boundingRect(words, Qt::AlignTop | Qt::TextWordWrap, accessibleName());
    const double whole = needed.height() + Unit::of(2 * kPaddingAbove + kAbove + kBelow);
    return static_cast<int>(std::lround(whole * m_motion.currentValue().toDouble()));
}

void CautionLine::place(const QRect& line, const QRect& clip) {
    const QRect inner = line.adjusted(0, Unit::of(kAbove), 0, -Unit::of(kBelow));
    const QRect seen = inner & clip;
    m_line = inner.translated(-seen.topLeft());
    setGeometry(seen);
    setVisible(!seen.isEmpty());
    raise();
    update();
}

void CautionLine::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_motion.currentValue().toDouble());
    painter.setPen(Qt::NoPen);
    painter.setBrush(asQColor(theme.cautionSoft));
    painter.drawRoundedRect(m_line, RowPainter::radius(), RowPainter::radius());
    const QRect words = wordsIn(m_line);
    const QFont font = Unit::font(kWords);
    const int side = Unit::of(kSymbol);
    const QRect symbol(m_line.left() + Unit::of(kPadding), words.top() + (QFontMetrics(font).height() - side) / 2, side,
                       side);
    PicturePainter::paint(painter, QStyle::visualRect(layoutDirection(), m_line, symbol),
                          windowSymbol(WindowSymbol::caution), asQColor(theme.caution));
    painter.setPen(asQColor(theme.text));
    painter.setFont(font);
    painter.drawText(words, Qt::AlignLeading | Qt::AlignTop | Qt::TextWordWrap, accessibleName());
}

}  // namespace kinesta
