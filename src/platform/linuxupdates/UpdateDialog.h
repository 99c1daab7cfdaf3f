#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "platform/linuxupdates/UpdateCheck.h"

namespace kinesta {

/// Who wants to know about updates.
enum class UpdateTrigger {
    person,
    /// The daily check, which shows nothing unless there is a new version.
    schedule
};

/// Shows what an update check finds, the progress of a download and where the file is.
class UpdateDialog final : public QDialog {
    Q_OBJECT

  public:
    /// `check` must outlive this.
    UpdateDialog(UpdateCheck& check, UpdateTrigger trigger);

    void reject() override;

  private:
    using Stage = UpdateProgress::Stage;

    void show(const UpdateProgress& progress);
    void act();

    UpdateCheck& m_check;
    UpdateTrigger m_trigger;
    QLabel m_headline;
    QLabel m_detail;
    QProgressBar m_bar;
    QPushButton m_action;
    QPushButton m_close;
    Subscription m_observation;
};

}  // namespace kinesta
