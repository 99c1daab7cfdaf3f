#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <vector>

#include "app/ApplicationController.h"

namespace kinesta {

/// The configuration window as far as it goes: whether gestures are on, what recognition says, and sentences about what
/// is missing.
class StatusWindow final : public QWidget {
    Q_OBJECT

  public:
    /// `controller` and `service` must outlive this.
    StatusWindow(ApplicationController& controller, MultitouchService& service);

    /// What is missing or went wrong, as sentences; the last ones come last.
    void setNotices(const QStringList& notices);
    /// Shows the present state again.
    void update();

  private:
    ApplicationController& m_controller;
    MultitouchService& m_service;
    QLabel m_status;
    QCheckBox m_enabled;
    QLabel m_lastGesture;
    QLabel m_notices;
    std::vector<Subscription> m_observations;
};

}  // namespace kinesta
