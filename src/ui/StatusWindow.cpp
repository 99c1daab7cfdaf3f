#include "ui/StatusWindow.h"

#include <QVBoxLayout>

namespace kinesta {

StatusWindow::StatusWindow(ApplicationController& controller, MultitouchService& service)
    : m_controller(controller), m_service(service), m_enabled(tr("Gestures enabled")) {
    QFont headline = font();
    headline.setPointSizeF(headline.pointSizeF() * 1.7);
    headline.setWeight(QFont::DemiBold);
    m_status.setFont(headline);
    for (QLabel* label : {&m_status, &m_lastGesture, &m_notices}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        label->setFocusPolicy(Qt::NoFocus);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(12);
    column->addWidget(&m_status);
    column->addWidget(&m_enabled);
    column->addWidget(&m_lastGesture);
    column->addWidget(&m_notices);
    column->addStretch();
    resize(560, 360);
    setMinimumSize(400, 300);

    connect(&m_enabled, &QCheckBox::clicked, this, [this](bool isOn) { m_service.setGestureEnabled(isOn); });
    const auto follow = [this](const auto& published) {
        m_observations.push_back(published.observe([this](const auto&) { update(); }));
    };
    follow(service.status());
    follow(service.isGestureEnabled());
    follow(service.lastGesture());
    m_notices.hide();
    update();
}

void StatusWindow::setNotices(const QStringList& notices) {
    m_notices.setText(notices.join(QStringLiteral("\n\n")));
    m_notices.setVisible(!notices.isEmpty());
}

void StatusWindow::update() {
    m_status.setText(QString::fromStdString(m_controller.statusLine()));
    m_enabled.setChecked(m_service.isGestureEnabled().value());
    m_lastGesture.setText(QString::fromStdString(m_service.lastGesture().value().value_or("")));
}

}  // namespace kinesta
