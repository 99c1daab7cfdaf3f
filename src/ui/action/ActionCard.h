#pragma once

#include <QComboBox>
#include <QPushButton>
#include <memory>
#include <optional>

#include "ui/WindowParts.h"
#include "ui/action/ActionPart.h"
#include "ui/action/CuePicture.h"
#include "ui/action/Remark.h"
#include "ui/action/TextField.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/Switch.h"

namespace kinesta {

/// The action of a rule: its kind, what belongs to the kind, and the cue.
class ActionCard final : public Card {
    Q_OBJECT

  public:
    /// All must outlive this.
    explicit ActionCard(const ActionEditing& editing);
    ActionCard(RuleEditorModel& model, const WindowParts& parts, WindowCommands& commands)
        : ActionCard({model, parts.desktop, parts.applications, commands}) {}

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void addCueRows();
    void addLastRow();
    void follow(const RuleEditorContent& content);
    void followKinds(const RuleEditorContent& content);
    void followCue(const GestureRule& rule, const std::string& placeholder);
    void showPart(ActionKind kind);

    ActionEditing m_editing;
    QComboBox* m_kind;
    Row* m_kindRow;
    std::vector<ActionKind> m_kinds;
    std::optional<ActionKind> m_partKind;
    std::unique_ptr<ActionPart> m_part;
    Row* m_cueRow;
    CuePicture* m_cuePicture;
    Switch* m_showsCue;
    Row* m_cueTextRow;
    TextField* m_cueText;
    Remark* m_missing;
    QPushButton* m_run;
    Subscription m_observer;
};

}  // namespace kinesta
