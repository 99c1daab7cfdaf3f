#include "platform/qt/CuePainter.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "feedback/ActionCuePanel.h"
#include "feedback/ActionCueSymbol.h"
#include "platform/qt/PicturePainter.h"

namespace kinesta {
namespace {

constexpr double kRadius = 13;
constexpr double kSymbolSide = 20;
constexpr double kSymbolInset = 14;
constexpr double kLabelInset = 44;
constexpr double kLabelEnd = 16;
constexpr double kLabelPixels = 14;
constexpr double kMostLabelPixels = 18;
/// In characters, more than fit. To elide megabytes takes minutes.
constexpr qsizetype kMostLabel = 200;
/// The line height of the font in which the label has kLabelPixels.
constexpr double kUnitHeight = 16;

const QColor kGround(22, 23, 28);
const QColor kSolidGround(0x24, 0x25, 0x2B);
const QColor kSolidEdge(0x5A, 0x5C, 0x68);
const QColor kInk(Qt::white);
constexpr double kOuterEdge = 0.28;  // black
constexpr double kInnerEdge = 0.18;  // white
constexpr double kHaloRadius = 1.5;
/// Of the ground and the halo together, so that white words stand at a contrast of 4.7 on white.
constexpr double kMostLightBehindWords = 0.40;

QColor withAlpha(QColor colour, double alpha) {
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

QFont labelFont() {
    QFont font = QApplication::font();
    const double unit = std::max(1.0, QFontMetricsF(font).height() / kUnitHeight);
    font.setPixelSize(static_cast<int>(std::lround(std::min(kMostLabelPixels, kLabelPixels * unit))));
    font.setWeight(QFont::DemiBold);
    return font;
}

const QRectF kFrame(0, 0, ActionCuePanel::width, ActionCuePanel::height);

/// A layer of the cue in points. Painters know no ratio below 1, so each scales by itself.
class Layer {
  public:
    explicit Layer(double ratio)
        : m_image((kFrame.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied), m_ratio(ratio) {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.scale(ratio, ratio);
    }

    QPainter& painter() { return m_painter; }

    QImage finished() && {
        m_painter.end();
        m_image.setDevicePixelRatio(m_ratio);
        return std::move(m_image);
    }

  private:
    QImage m_image;
    double m_ratio;
    QPainter m_painter;
};

bool isSolid(const CuePainter::Look& look) { return !look.hasCompositor || look.groundOpacity >= 1; }

void drawGround(QPainter& painter, const CuePainter::Look& look) {
    if (isSolid(look)) {
        if (!look.hasCompositor)  // the mask has hard edges, where smoothed ones would show black
            painter.fillRect(kFrame, kSolidEdge);
        painter.fillPath(CuePainter::outline(0), kSolidEdge);
        return painter.fillPath(CuePainter::outline(1), kSolidGround);
    }
    painter.fillPath(CuePainter::outline(0), withAlpha(kGround, look.groundOpacity));
    painter.strokePath(CuePainter::outline(0.5), QPen(withAlpha(Qt::black, kOuterEdge), 1));
    painter.strokePath(CuePainter::outline(1.5), QPen(withAlpha(Qt::white, kInnerEdge), 1));
}

QImage drawnWords(const ActionCueContent& content, Qt::LayoutDirection direction, double ratio) {
    Layer words(ratio);
    QPainter& painter = words.painter();
    const bool isMirrored = direction == Qt::RightToLeft;
    QRectF symbol(kSymbolInset, (kFrame.height() - kSymbolSide) / 2, kSymbolSide, kSymbolSide);
    QRectF label(kLabelInset, 0, kFrame.width() - kLabelInset - kLabelEnd, kFrame.height());
    if (isMirrored) {
        symbol.moveRight(kFrame.width() - kSymbolInset);
        label.moveRight(kFrame.width() - kLabelInset);
    }
    PicturePainter::paint(painter, symbol, actionCueSymbol(content.symbol), kInk);
    const QFont font = labelFont();
    painter.setFont(font);
    painter.setPen(kInk);
    const QString text = QString::fromStdString(content.label).left(kMostLabel).simplified();
    const Qt::Alignment side = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    QTextOption option(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    // From the text itself: the keys of a shortcut keep their order in every language.
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(label, QFontMetricsF(font).elidedText(text, Qt::ElideRight, label.width()), option);
    return std::move(words).finished();
}

QImage haloOf(const QImage& words, double ratio) {
    constexpr int kCopies = 16;
    Layer halo(ratio);
    QPainter& painter = halo.painter();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < kCopies; ++i) {
        const double angle = 2 * std::numbers::pi * i / kCopies;
        painter.drawImage(QPointF(kHaloRadius * std::cos(angle), kHaloRadius * std::sin(angle)), words);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(kFrame, kGround);
    return std::move(halo).finished();
}

}  // namespace

QPainterPath CuePainter::outline(double inset) {
    QPainterPath path;
    path.addRoundedRect(kFrame.adjusted(inset, inset, -inset, -inset), kRadius - inset, kRadius - inset);
    return path;
}

QImage CuePainter::image(const ActionCueContent& content, const Look& look, double ratio) {
    Layer cue(ratio);
    QPainter& painter = cue.painter();
    painter.setRenderHint(QPainter::Antialiasing);
    drawGround(painter, look);
    const QImage words = drawnWords(content, look.direction, ratio);
    const double light = 1 - look.groundOpacity;
    if (!isSolid(look) && light > kMostLightBehindWords) {
        painter.setOpacity(1 - kMostLightBehindWords / light);
        painter.drawImage(QPointF(), haloOf(words, ratio));
        painter.setOpacity(1);
    }
    painter.drawImage(QPointF(), words);
    return std::move(cue).finished();
}

}  // namespace kinesta
