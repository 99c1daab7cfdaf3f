#include "ui/settings/SettingsPage.h"

#include <QPushButton>
#include <QTimer>
#include <chrono>

#include "app/Desktop.h"
#include "feedback/ActionCuePresenter.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/settings/ApplicationCard.h"
#include "ui/settings/ControlLine.h"
#include "ui/settings/CueCard.h"
#include "ui/settings/PalmsCard.h"
#include "ui/settings/RecognitionCard.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

/// Looking for trackpads opens each of them, so the page does it no more often when it is shown again.
constexpr std::chrono::minutes kListingAge{1};
constexpr double kTitleInset = 2;
constexpr double kBelowTitle = 10;

SettingsModel::Parts modelParts(const WindowParts& parts) {
    return {.defaults = parts.desktop.defaults(),
            .service = parts.service,
            .launchAtLogin = parts.launchAtLogin,
            .updates = parts.updates,
            .platform = parts.desktop.platformSettings(),
            .connectedTrackpads = [&desktop = parts.desktop] { return desktop.connectedTrackpads(); },
            .applyTrackpad = [&desktop = parts.desktop] { desktop.trackpad().choose({}); },
            .applyAppearance = parts.applyAppearance};
}

Row* rowWith(const QString& title, const QString& detail, QWidget* control) {
    auto* row = new Row(title, detail);
    row->setControl(control);
    return row;
}

}  // namespace

SettingsPage::SettingsPage(const WindowParts& parts, WindowCommands& commands)
    : m_model(modelParts(parts)),
      m_recognition(new RecognitionCard(m_model)),
      m_palms(new PalmsCard(m_model)),
      m_cue(new CueCard(m_model)),
      m_shell(new Switch(tr("Let rules run shell commands"))),
      m_application(new ApplicationCard(m_model)),
      m_transfer(new Notice(Notice::Kind::error, {}, {})) {
    addTitle();
    add(m_recognition);
    addHeading(tr("Palms"));
    add(m_palms);
    addCue(parts.cue);
    addShellCommands();
    addHeading(tr("Application"));
    add(m_application);
    addRules(parts.version, commands);

    m_observers.push_back(m_model.content().observe([this](const SettingsContent& content) { load(content); }));
    m_observers.push_back(parts.service.status().observe([this](const auto&) {
        m_sinceListing.invalidate();  // a pad may have come or gone
        if (isVisible())
            m_model.listTrackpads();
    }));
    load(m_model.content().value());
}

// The cards are destroyed after the model.
SettingsPage::~SettingsPage() {
    settle();
    m_observers.clear();
}

void SettingsPage::addTitle() {
    auto* heading = new QWidget;
    m_heading = new QHBoxLayout(heading);
    m_heading->setContentsMargins(Unit::of(kTitleInset), 0, Unit::of(kTitleInset), Unit::of(kBelowTitle));
    m_heading->addWidget(new Words(tr("Settings"), Words::Size::title), 1);
    add(heading);
}

void SettingsPage::addCue(ActionCuePresenter& cue) {
    auto* preview = new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::play)), tr("Preview"));
    connect(preview, &QPushButton::clicked, this, [this, &cue] {
        m_cue->settle();
        cue.preview();
    });
    addHeading(tr("Action cue"), preview);
    add(m_cue);
}

void SettingsPage::addShellCommands() {
    connect(m_shell, &Switch::clicked, this, [this](bool isOn) { m_model.setRunsShellCommands(isOn); });
    auto* card = new Card;
    card->add(
        rowWith(tr("Let rules run shell commands"), tr("Each command must also be confirmed in its rule."), m_shell));
    card->add(new Notice(Notice::Kind::caution, tr("Commands run with all your rights, without asking."),
                         tr("Switch this on only for commands that you wrote or understand.")));
    addHeading(tr("Shell commands"));
    add(card);
}

void SettingsPage::addRules(const std::string& version, WindowCommands& commands) {
    auto* import = new QPushButton(tr("Import…"));
    auto* exportRules = new QPushButton(tr("Export…"));
    auto* reset = new QPushButton(tr("Reset…"));
    auto* about = new QPushButton(tr("About…"));
    reset->setProperty("destructive", true);
    connect(import, &QPushButton::clicked, this, [&commands] { commands.importRules(); });
    connect(exportRules, &QPushButton::clicked, this, [&commands] { commands.exportRules(); });
    connect(reset, &QPushButton::clicked, this, [this, &commands] {
        settle();
        commands.resetSettings();
    });
    connect(about, &QPushButton::clicked, this, [&commands] { commands.showAbout(); });
    m_transfer->hide();
    auto* card = new Card;
    card->add(rowWith(tr("Rules as a file"),
                      tr("Export all rules, or replace them by those of a file. An import can be undone."),
                      new ControlLine({import, exportRules})));
    card->add(m_transfer);
    card->add(rowWith(tr("Reset settings"),
                      tr("Puts the settings back as they were at first. Rules and the start at login stay."), reset));
    card->add(rowWith(tr("About Kinesta"), tr("Version %1").arg(QString::fromStdString(version)), about));
    addHeading(tr("Rules"));
    add(card);
}

void SettingsPage::setTransfer(const QString& problem, const QString& note) {
    m_transfer->setKind(problem.isEmpty() ? Notice::Kind::plain : Notice::Kind::error);
    m_transfer->setWords(problem.isEmpty() ? note : problem, {});
    m_transfer->setVisible(!problem.isEmpty() || !note.isEmpty());
    // It has its place once the layout has run.
    if (!problem.isEmpty())
        QTimer::singleShot(0, this, [this] { ensureWidgetVisible(m_transfer); });
}

void SettingsPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    if (m_sinceListing.isValid() && !m_sinceListing.hasExpired(std::chrono::milliseconds(kListingAge).count()))
        return m_model.refresh();
    m_sinceListing.start();
    m_model.listTrackpads();
}

void SettingsPage::load(const SettingsContent& content) {
    m_recognition->load(content);
    m_palms->load(content);
    m_cue->load(content);
    m_shell->setChecked(content.runsShellCommands);
    m_application->load(content);
}

void SettingsPage::settle() {
    m_palms->settle();
    m_cue->settle();
}

}  // namespace kinesta
