#include "ui/sidebar/RowPainter.h"

#include <QStyle>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::RowPainter {
namespace {

constexpr double kRadius = 8;
constexpr double kInset = 8;
constexpr double kBar = 3;
constexpr double kBarInset = 10;

}  // namespace

double radius() { return Unit::of(kRadius); }

int inset() { return Unit::of(kInset); }

void paintGround(QPainter& painter, const QRect& row, const State& state) {
    const AppTheme& theme = WindowTheme::current();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (state.isSelected || state.isHovered) {
        QColor ground = asQColor(theme.selected);
        if (!state.isSelected)
            ground.setAlphaF(0.5F);
        painter.setBrush(ground);
        painter.drawRoundedRect(row, radius(), radius());
    }
    if (!state.isShown)
        return;
    const int above = Unit::of(kBarInset);
    const QRect bar(row.left(), row.top() + above, Unit::of(kBar), row.height() - 2 * above);
    painter.setBrush(asQColor(theme.accent));
    painter.drawRoundedRect(QStyle::visualRect(state.direction, row, bar), bar.width() / 2.0, bar.width() / 2.0);
}

void paintWords(QPainter& painter, const QRect& line, const QFont& font, const QString& words,
                Qt::LayoutDirection way) {
    const Qt::Alignment alignment = QStyle::visualAlignment(way, Qt::AlignLeft | Qt::AlignVCenter) | Qt::AlignAbsolute;
    painter.setFont(font);
    painter.drawText(line, static_cast<int>(alignment) | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(words, Qt::ElideRight, line.width(), Qt::TextSingleLine));
}

}  // namespace kinesta::RowPainter
