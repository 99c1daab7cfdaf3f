#include "platform/linuxdesktop/cue/CueWindow.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "feedback/ActionCuePanel.h"
#include "feedback/ActionCueSymbol.h"
#include "platform/linuxdesktop/cue/WindowShape.h"
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

QPainterPath capsule(const QRectF& frame, double inset) {
    QPainterPath path;
    path.addRoundedRect(frame.adjusted(inset, inset, -inset, -inset), kRadius - inset, kRadius - inset);
    return path;
}

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

}  // namespace

CueWindow::CueWindow()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                           // Window managers would put a frame there that takes clicks, and full-screen windows above.
                           Qt::X11BypassWindowManagerHint) {
    setWindowTitle(QStringLiteral("Kinesta Cue"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(static_cast<int>(ActionCuePanel::width), static_cast<int>(ActionCuePanel::height));
}

void CueWindow::setContent(const ActionCueContent& content) {
    if (content == m_content && !m_drawn.isNull())
        return;
    m_content = content;
    redraw();
}

void CueWindow::setGroundOpacity(double opacity) {
    if (std::exchange(m_groundOpacity, opacity) != opacity)
        redraw();
}

void CueWindow::setCompositor(bool isThere) {
    if (std::exchange(m_hasCompositor, isThere) == isThere)
        return;
    cut();
    redraw();
}

void CueWindow::cut() { cutWindow(*this, m_hasCompositor ? QPainterPath() : capsule(rect(), 0)); }

void CueWindow::setAlpha(double alpha) {
    m_alpha = alpha;
    update();
}

void CueWindow::redraw() {
    m_drawn = {};
    update();
}

void CueWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        redraw();
    QWidget::changeEvent(event);
}

void CueWindow::showEvent(QShowEvent* event) {
    // Again at each show, perhaps on a screen of another scale.
    cut();
    QWidget::showEvent(event);
}

void CueWindow::paintEvent(QPaintEvent* /*event*/) {
    if (m_drawn.devicePixelRatio() != devicePixelRatioF() || m_drawn.isNull())
        m_drawn = drawnWindow();
    QPainter painter(this);
    painter.setOpacity(m_hasCompositor ? m_alpha : 1);
    painter.drawImage(QPointF(), m_drawn);
}

QImage CueWindow::layer() const {
    QImage image(size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::transparent);
    return image;
}

QImage CueWindow::drawnWindow() const {
    QImage window = layer();
    QPainter painter(&window);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGround(painter);
    const QImage words = drawnWords();
    const double light = 1 - m_groundOpacity;
    if (!isSolid() && light > kMostLightBehindWords) {
        painter.setOpacity(1 - kMostLightBehindWords / light);
        painter.drawImage(QPointF(), haloOf(words));
        painter.setOpacity(1);
    }
    painter.drawImage(QPointF(), words);
    return window;
}

void CueWindow::drawGround(QPainter& painter) const {
    const QRectF frame(rect());
    if (isSolid()) {
        if (!m_hasCompositor)  // the mask has hard edges, where smoothed ones would show black
            painter.fillRect(frame, kSolidEdge);
        painter.fillPath(capsule(frame, 0), kSolidEdge);
        return painter.fillPath(capsule(frame, 1), kSolidGround);
    }
    painter.fillPath(capsule(frame, 0), withAlpha(kGround, m_groundOpacity));
    painter.strokePath(capsule(frame, 0.5), QPen(withAlpha(Qt::black, kOuterEdge), 1));
    painter.strokePath(capsule(frame, 1.5), QPen(withAlpha(Qt::white, kInnerEdge), 1));
}

QImage CueWindow::drawnWords() const {
    QImage words = layer();
    QPainter painter(&words);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    QRectF symbol(kSymbolInset, (height() - kSymbolSide) / 2, kSymbolSide, kSymbolSide);
    QRectF label(kLabelInset, 0, width() - kLabelInset - kLabelEnd, height());
    if (isMirrored) {
        symbol.moveRight(width() - kSymbolInset);
        label.moveRight(width() - kLabelInset);
    }
    PicturePainter::paint(painter, symbol, actionCueSymbol(m_content.symbol), kInk);
    const QFont font = labelFont();
    painter.setFont(font);
    painter.setPen(kInk);
    const QString text = QString::fromStdString(m_content.label).simplified();
    const Qt::Alignment side = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    QTextOption option(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    // From the text itself: the keys of a shortcut keep their order in every language.
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(label, QFontMetricsF(font).elidedText(text, Qt::ElideRight, label.width()), option);
    return words;
}

QImage CueWindow::haloOf(const QImage& words) const {
    constexpr int kCopies = 16;
    QImage halo = layer();
    QPainter painter(&halo);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < kCopies; ++i) {
        const double angle = 2 * std::numbers::pi * i / kCopies;
        painter.drawImage(QPointF(kHaloRadius * std::cos(angle), kHaloRadius * std::sin(angle)), words);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(rect(), kGround);
    return halo;
}

}  // namespace kinesta
