#include "ui/settings/ApplicationCard.h"

#include "support/Translation.h"
#include "ui/settings/ControlLine.h"
#include "ui/settings/SettingsPictures.h"
#include "ui/settings/WheelGuard.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

/// A combo box with longer words elides them where they do not fit.
constexpr double kNarrowCombo = 96;

}  // namespace

ApplicationCard::ApplicationCard(SettingsModel& model)
    : m_model(model),
      m_appearance(new TileGroup(tr("Appearance"), 3)),
      m_loginRow(new Row(tr("Launch at login"))),
      m_approve(new QPushButton(tr("Open Login Item Settings…"))),
      m_login(new Switch(tr("Launch at login"))),
      m_loginProblem(new Notice(Notice::Kind::error, {}, {})),
      m_updateRow(new Row(tr("Check for updates by itself"))),
      m_check(new QPushButton(tr("Check now"))),
      m_checks(new Switch(tr("Check for updates by itself"))) {
    addAppearance();
    addLogin();
    addPlatform();
    addUpdates();
}

void ApplicationCard::addAppearance() {
    for (const auto& row : enumTable<AppAppearance>()) {
        const QString title = QString::fromStdString(translated(row.title));
        m_appearance->addTile(static_cast<int>(row.value),
                              new Tile(Tile::Form::card, title, title, SettingsPictures::windowSize,
                                       SettingsPictures::window(row.value)));
    }
    auto* row = new Row(tr("Appearance"), tr("System follows the desktop’s own switch."));
    row->setControl(m_appearance);
    add(row);
    connect(m_appearance, &TileGroup::chose, this,
            [this](int value) { m_model.setAppearance(static_cast<AppAppearance>(value)); });
}

void ApplicationCard::addLogin() {
    m_approve->setProperty("link", true);
    m_loginRow->setControl(new ControlLine({m_approve, m_login}));
    m_loginRow->title().setBuddy(m_login);
    m_loginProblem->hide();
    add(m_loginRow);
    add(m_loginProblem);
    connect(m_approve, &QPushButton::clicked, this, [this] { m_model.openLoginItemSettings(); });
    connect(m_login, &Switch::clicked, this, [this](bool isOn) { m_model.setLaunchAtLogin(isOn); });
}

void ApplicationCard::addPlatform() {
    for (const PlatformChoice& choice : m_model.platform().choices) {
        auto* combo = new QComboBox;
        for (const PlatformChoice::Case& one : choice.cases)
            combo->addItem(QString::fromStdString(one.title));
        auto* row = new Row(QString::fromStdString(choice.name));
        combo->setAccessibleName(QString::fromStdString(choice.name));
        combo->setMinimumWidth(Unit::of(kNarrowCombo));
        WheelGuard::install(*combo);
        row->setControl(combo);
        add(row);
        connect(combo, &QComboBox::activated, this, [this, at = m_platform.size()](int index) {
            m_model.choosePlatformCase(at, static_cast<std::size_t>(index));
        });
        m_platform.push_back({row, combo});
    }
}

void ApplicationCard::addUpdates() {
    m_updateRow->setControl(new ControlLine({m_check, m_checks}));
    m_updateRow->title().setBuddy(m_checks);
    add(m_updateRow);
    connect(m_check, &QPushButton::clicked, this, [this] { m_model.checkForUpdates(); });
    connect(m_checks, &Switch::clicked, this, [this](bool isOn) { m_model.setChecksForUpdates(isOn); });
}

void ApplicationCard::load(const SettingsContent& content) {
    m_appearance->setChosen(static_cast<int>(content.appearance));
    m_login->setChecked(content.launchesAtLogin);
    m_approve->setVisible(content.waitsForApproval);
    m_loginRow->setDetail(content.waitsForApproval ? tr("Waiting for your approval in the system’s settings.")
                                                   : tr("Starts with your session and shows no window."));
    m_loginProblem->setWords(QString::fromStdString(content.loginProblem), {});
    m_loginProblem->setVisible(!content.loginProblem.empty());
    for (std::size_t i = 0; i < m_platform.size(); ++i) {
        const std::size_t chosen = content.platformCases.at(i);
        m_platform[i].combo->setCurrentIndex(static_cast<int>(chosen));
        m_platform[i].row->setDetail(QString::fromStdString(m_model.platform().choices.at(i).cases.at(chosen).detail));
    }
    m_updateRow->setDetail(QString::fromStdString(content.updateMessage));
    m_check->setEnabled(content.canCheckForUpdates);
    m_checks->setEnabled(content.hasUpdates);
    m_checks->setChecked(content.checksForUpdates);
}

}  // namespace kinesta
