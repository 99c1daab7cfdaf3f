#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <optional>

#include "ui/models/RuleListModel.h"

namespace kinesta {

/// Asks whether to delete rules while their deletion is pending.
class DeletionQuestion final : public QObject {
    Q_OBJECT

  public:
    /// The model must outlive this. The question blocks the window of `parent`.
    DeletionQuestion(RuleListModel& rules, QWidget* parent);

  private:
    void follow(const std::optional<GestureDeletionRequest>& pending);
    void make();
    void answer();

    RuleListModel& m_rules;
    QWidget* m_parent;
    QPointer<QMessageBox> m_box;
    QPushButton* m_delete = nullptr;
    Subscription m_observer;
};

}  // namespace kinesta
