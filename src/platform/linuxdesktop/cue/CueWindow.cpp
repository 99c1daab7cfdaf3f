#include "platform/linuxdesktop/cue/CueWindow.h"

#include <QEvent>
#include <QPainter>
#include <utility>

#include "feedback/ActionCuePanel.h"
#include "platform/linuxdesktop/cue/WindowShape.h"
#include "platform/qt/CuePainter.h"

namespace kinesta {

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

void CueWindow::cut() { cutWindow(*this, m_hasCompositor ? QPainterPath() : CuePainter::outline(0)); }

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
        m_drawn =
            CuePainter::image(m_content, {m_groundOpacity, m_hasCompositor, layoutDirection()}, devicePixelRatioF());
    QPainter painter(this);
    painter.setOpacity(m_hasCompositor ? m_alpha : 1);
    painter.drawImage(QPointF(), m_drawn);
}

}  // namespace kinesta
