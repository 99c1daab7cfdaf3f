#include "ui/style/Shapes.h"

#include <QApplication>
#include <QStyle>
#include <cmath>

#include "platform/qt/PicturePainter.h"

namespace kinesta::Shapes {
namespace {

constexpr char16_t kFirstStrongIsolate = 0x2068;

}  // namespace

bool has(const QWidget* widget, const char* property) {
    return widget != nullptr && widget->property(property).toBool();
}

QFont font(const QWidget* widget, QFont::Weight weight) {
    QFont result = widget != nullptr ? widget->font() : QApplication::font();
    result.setWeight(weight);
    return result;
}

QColor mixed(const QColor& colour, const QColor& ground, double share) {
    const auto channel = [share](int above, int below) {
        return static_cast<int>(std::lround(below + (above - below) * share));
    };
    return {channel(colour.red(), ground.red()), channel(colour.green(), ground.green()),
            channel(colour.blue(), ground.blue())};
}

void fill(QPainter& painter, const QRectF& box, double radius, const QColor& colour) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(box, radius, radius);
}

void edge(QPainter& painter, const QRectF& box, double radius, const QColor& colour, double width) {
    const double half = width / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void symbol(QPainter& painter, WindowSymbol symbol, const QRect& box, const QColor& colour) {
    PicturePainter::paint(painter, box, windowSymbol(symbol), colour);
}

void icon(QPainter& painter, const QIcon& icon, const QRect& box, bool isEnabled, const QColor& colour) {
    const double ratio = painter.device()->devicePixelRatioF();
    QPixmap pixmap = icon.pixmap(box.size(), ratio, isEnabled ? QIcon::Normal : QIcon::Disabled);
    if (icon.isMask() && !pixmap.isNull()) {
        QPainter tint(&pixmap);
        tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tint.fillRect(pixmap.rect(), colour);
    }
    const QSize size = pixmap.deviceIndependentSize().toSize();
    painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, box), pixmap);
}

void text(QPainter& painter, const QRect& box, Qt::Alignment align, const QString& text, bool showsMnemonic) {
    const int mnemonic = showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const int flags = static_cast<int>(align.toInt()) | mnemonic | Qt::TextSingleLine;
    const QFontMetrics metrics = painter.fontMetrics();
    const bool fits = metrics.size(Qt::TextShowMnemonic, text).width() <= box.width();
    const QString fitting = fits ? text : metrics.elidedText(text, Qt::ElideRight, box.width(), Qt::TextShowMnemonic);
    // Words keep their own direction, also of the ellipsis at their end.
    painter.drawText(box, flags, QChar(kFirstStrongIsolate) + fitting);
}

QRect placed(const QStyleOption& option, const QRect& part) {
    return QStyle::visualRect(option.direction, option.rect, part);
}

}  // namespace kinesta::Shapes
