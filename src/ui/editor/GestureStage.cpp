#include "ui/editor/GestureStage.h"

#include <QEvent>
#include <QVBoxLayout>
#include <utility>

#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kPadWidth = 200;
constexpr double kBeside = 24;
constexpr double kAbove = 32;
constexpr double kPlayFromEnd = 5;
constexpr double kPlayFromBottom = 4;

}  // namespace

GestureStage::GestureStage(std::function<double()> tapWaitingInterval)
    : m_tapWaitingInterval(std::move(tapWaitingInterval)),
      m_pad(new PadPicture(kPadWidth, this)),
      m_play(new PlayButton(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_pad, 0, Qt::AlignCenter);
    connect(m_play, &PlayButton::clicked, this, [this] { show(m_gesture); });
    setPadWidth(kPadWidth);
}

void GestureStage::setGesture(const PadGesture& gesture, const QString& name, const QString& sentence) {
    m_pad->setAccessibleName(name);
    m_pad->setAccessibleDescription(sentence);
    if (gesture == m_gesture)
        return;
    m_gesture = gesture;
    m_isPreview = false;
    show(gesture);
    placeControl();
}

void GestureStage::preview(const PadGesture& gesture) {
    // What was just chosen is being performed already.
    if (gesture == m_gesture && !m_isPreview && m_pad->isPerforming())
        return;
    m_isPreview = true;
    show(gesture);
}

void GestureStage::endPreview() {
    if (!std::exchange(m_isPreview, false))
        return;
    m_pad->setGesture(m_gesture);
    m_pad->rest();
}

void GestureStage::show(const PadGesture& gesture) {
    m_pad->setGesture(gesture);
    m_pad->perform(m_tapWaitingInterval());
}

void GestureStage::setPadWidth(double width) {
    if (std::exchange(m_padWidth, width) == width)
        return;
    m_pad->setPadWidth(width);
    measure();
}

void GestureStage::measure() {
    setMinimumSize(m_pad->sizeHint() + Unit::of(2 * kBeside, 2 * kAbove));
    placeControl();
}

void GestureStage::placeControl() {
    m_play->setVisible(m_gesture.kind != GestureKind::unconfigured && !WindowTheme::reducesMotion());
    m_play->resize(m_play->sizeHint());
    const int fromEnd = Unit::of(kPlayFromEnd);
    const int x = layoutDirection() == Qt::RightToLeft ? fromEnd : width() - fromEnd - m_play->width();
    m_play->move(x, height() - Unit::of(kPlayFromBottom) - m_play->height());
}

void GestureStage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
    else if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::ActivationChange)
        placeControl();  // the system's motion setting may have changed meanwhile
}

void GestureStage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeControl();
}

void GestureStage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    placeControl();
    if (!event->spontaneous())
        show(m_gesture);
}

}  // namespace kinesta
