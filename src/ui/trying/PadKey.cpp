#include "ui/trying/PadKey.h"

#include <QPainter>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kSide = 14;
constexpr double kGap = 6;
constexpr double kBetween = 16;
constexpr double kRounding = 3;
constexpr double kBandOpacity = 0.18;
constexpr double kPalmOpacity = 0.40;

MarkedWords::Mark filled(Rgb AppTheme::*ink, double opacity) {
    return [ink, opacity](QPainter& painter, const QRectF& box, const AppTheme& theme) {
        painter.setOpacity(opacity);
        painter.setPen(Qt::NoPen);
        painter.setBrush(asQColor(theme.*ink));
        painter.drawRoundedRect(box, kRounding, kRounding);
    };
}

void paintDashed(QPainter& painter, const QRectF& box, const AppTheme& theme) {
    QPen pen(asQColor(theme.accent), 1);
    pen.setDashPattern({3, 2});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), kRounding, kRounding);
}

MarkedWords* entry(const QString& text, MarkedWords::Mark mark) {
    auto* words = new MarkedWords(Words::Size::detail, kSide, kGap);
    words->words().setText(text);
    words->words().setWordWrap(false);
    words->setMark(std::move(mark));
    return words;
}

}  // namespace

PadKey::PadKey()
    : m_line(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      m_bands(entry(tr("Edge bands"), filled(&AppTheme::accent, kBandOpacity))),
      m_corners(entry(tr("Corners for drawing"), paintDashed)),
      m_palms(entry(tr("Ignored as palm"), filled(&AppTheme::caution, kPalmOpacity))) {
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->addWidget(m_bands);
    m_line->addStretch(1);
    m_line->addWidget(m_corners);
    m_line->addStretch(1);
    m_line->addWidget(m_palms);
}

void PadKey::setPalmsShown(bool areShown) {
    m_palms->setVisible(areShown);
    arrange();
}

void PadKey::setRoom(int width) {
    m_room = width;
    setFixedWidth(width);
    arrange();
}

void PadKey::arrange() {
    int needed = m_bands->sizeHint().width() + m_corners->sizeHint().width() + Unit::of(kBetween);
    if (!m_palms->isHidden())
        needed += m_palms->sizeHint().width() + Unit::of(kBetween);
    m_line->setDirection(needed <= m_room ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_line->setSpacing(needed <= m_room ? 0 : Unit::of(4));
}

}  // namespace kinesta
