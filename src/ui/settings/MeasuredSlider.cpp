#include "ui/settings/MeasuredSlider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <algorithm>
#include <chrono>
#include <utility>

#include "ui/settings/WheelGuard.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr std::chrono::milliseconds kRest{150};
constexpr double kWidth = 240;
constexpr double kValueWidth = 44;
constexpr double kGap = 12;

}  // namespace

MeasuredSlider::MeasuredSlider(const QString& name, SettingsModel::Range range, int page, Value value, Format format)
    : m_format(std::move(format)), m_slider(new QSlider(Qt::Horizontal)), m_value(new QLabel) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_slider, 1);
    line->addWidget(m_value);
    m_value->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_value->setVisible(value == Value::shown);
    m_slider->setAccessibleName(name);
    m_slider->setRange(range.least, range.most);
    m_slider->setPageStep(page);
    WheelGuard::install(*m_slider);
    setFocusProxy(m_slider);
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    connect(&m_rest, &QTimer::timeout, this, [this] { Q_EMIT settled(m_slider->value()); });
    connect(m_slider, &QSlider::sliderReleased, this, &MeasuredSlider::settle);
    connect(m_slider, &QSlider::valueChanged, this, [this](int moved) {
        describe();
        m_rest.start();
        Q_EMIT this->moved(moved);
    });
    measure();
    describe();
}

void MeasuredSlider::setValue(int value) {
    if (m_rest.isActive() || m_slider->isSliderDown() || value == m_slider->value())
        return;
    const QSignalBlocker quiet(m_slider);
    m_slider->setValue(value);
    describe();
}

void MeasuredSlider::settle() {
    if (!m_rest.isActive())
        return;
    m_rest.stop();
    Q_EMIT settled(m_slider->value());
}

void MeasuredSlider::describe() {
    const QString words = m_format(m_slider->value());
    m_value->setText(words);
    m_slider->setAccessibleDescription(words);
}

void MeasuredSlider::measure() {
    m_value->setFont(Unit::font(1, QFont::Medium));
    int widest = Unit::of(kValueWidth);
    for (const int value : {m_slider->minimum(), m_slider->maximum()})
        widest = std::max(widest, m_value->fontMetrics().horizontalAdvance(m_format(value)));
    m_value->setFixedWidth(widest);
    layout()->setSpacing(Unit::of(kGap));
    if (m_value->isVisibleTo(this))
        m_slider->setFixedWidth(Unit::of(kWidth));
}

void MeasuredSlider::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void MeasuredSlider::hideEvent(QHideEvent* event) {
    settle();
    QWidget::hideEvent(event);
}

}  // namespace kinesta
