#include "ui/action/CuePicture.h"

#include <QPainter>

#include "feedback/ActionCuePanel.h"
#include "platform/qt/CuePainter.h"

namespace kinesta {
namespace {

constexpr double kScale = 0.8;

}  // namespace

void CuePicture::setContent(const ActionCueContent& content, double groundOpacity) {
    m_content = content;
    m_groundOpacity = groundOpacity;
    update();
}

QSize CuePicture::sizeHint() const {
    return QSizeF(ActionCuePanel::width * kScale, ActionCuePanel::height * kScale).toSize();
}

void CuePicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QSizeF box(ActionCuePanel::width * kScale, ActionCuePanel::height * kScale);
    painter.drawImage(QRectF({}, box), CuePainter::image(m_content, {m_groundOpacity, true, layoutDirection()},
                                                         devicePixelRatioF() * kScale));
}

}  // namespace kinesta
