#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "platform/linuxdesktop/updates/FeedUpdater.h"

namespace kinesta {

/// Shows what an update check finds, the progress of a download and where the file is. An automatic check shows it only
/// when there is a new version.
class UpdateDialog final : public QDialog {
    Q_OBJECT

  public:
    /// `updater` must outlive this.
    explicit UpdateDialog(FeedUpdater& updater);

    void reject() override;

  private:
    using Stage = UpdateProgress::Stage;

    void show(const UpdateProgress& progress);
    void act();

    FeedUpdater& m_updater;
    QLabel m_headline;
    QLabel m_detail;
    QProgressBar m_bar;
    QPushButton m_action;
    QPushButton m_close;
    Subscription m_observation;
};

}  // namespace kinesta
