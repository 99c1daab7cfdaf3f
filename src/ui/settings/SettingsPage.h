#pragma once

#include <QElapsedTimer>
#include <QHBoxLayout>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/SettingsModel.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Page.h"
#include "ui/widgets/Switch.h"

namespace kinesta {

class ApplicationCard;
class CueCard;
class PalmsCard;
class RecognitionCard;

/// All settings. Each change counts at once.
class SettingsPage final : public Page {
    Q_OBJECT

  public:
    /// All must outlive this.
    SettingsPage(const WindowParts& parts, WindowCommands& commands);
    ~SettingsPage() override;

    /// Shows why a rule file could not be imported or exported, or else something worth knowing about the last import.
    /// Both may be empty.
    void setTransfer(const QString& problem, const QString& note);
    /// Reads what cannot be observed: the stored settings have changed behind the page.
    void refresh() { m_model.refresh(); }

    void setBackButton(QWidget* button) override {
        m_heading->insertWidget(0, button);
        button->lower();  // first for screen readers, too
    }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void addTitle();
    void addCue(ActionCuePresenter& cue);
    void addShellCommands();
    void addRules(const std::string& version, WindowCommands& commands);
    void load(const SettingsContent& content);
    void settle();

    SettingsModel m_model;
    QHBoxLayout* m_heading = nullptr;
    RecognitionCard* m_recognition;
    PalmsCard* m_palms;
    CueCard* m_cue;
    Switch* m_shell;
    ApplicationCard* m_application;
    Notice* m_transfer;
    QElapsedTimer m_sinceListing;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
