#pragma once

#include <QComboBox>
#include <QPushButton>
#include <vector>

#include "ui/models/SettingsModel.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/TileGroup.h"

namespace kinesta {

/// Appearance, start at login, what only this platform has, and updates.
class ApplicationCard final : public Card {
    Q_OBJECT

  public:
    /// The model must outlive this.
    explicit ApplicationCard(SettingsModel& model);

    void load(const SettingsContent& content);

  private:
    struct PlatformRow {
        Row* row;
        QComboBox* combo;
    };

    void addAppearance();
    void addLogin();
    void addPlatform();
    void addUpdates();

    SettingsModel& m_model;
    TileGroup* m_appearance;
    Row* m_loginRow;
    QPushButton* m_approve;
    Switch* m_login;
    Notice* m_loginProblem;
    std::vector<PlatformRow> m_platform;
    Row* m_updateRow;
    QPushButton* m_check;
    Switch* m_checks;
};

}  // namespace kinesta
