#include "ui/action/CommandPart.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPushButton>

#include "app/Desktop.h"
#include "rules/ShellCommandSettings.h"
#include "support/Text.h"
#include "ui/action/FieldColumn.h"
#include "ui/action/FieldFrame.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 8;

}  // namespace

CommandPart::CommandPart(const ActionEditing& editing)
    : m_editing(editing),
      m_row(new Row(tr("Command"))),
      m_field(new CommandField(tr("Command"))),
      m_confirmed(new QCheckBox),
      m_confirmation(new Words(tr("I have read this command and want Kinesta to run it."), Words::Size::body)),
      m_remark(new Remark(Remark::Kind::caution)),
      m_notice(new Notice(Notice::Kind::plain, tr("Shell commands are switched off."),
                          tr("This rule runs its command once they are switched on in Settings."))) {
    m_row->setWideControl(fieldColumn({new FieldFrame(m_field), makeConfirmation(), m_remark}));
    m_row->title().setBuddy(m_field);
    auto* settings = new QPushButton(tr("Open Settings"));
    settings->setProperty("link", true);
    m_notice->setControl(settings);
    connect(settings, &QPushButton::clicked, this, [this] { m_editing.commands.select(WindowSelection::settings()); });
    connect(m_field, &CommandField::typed, this,
            [this](const QString& text) { m_editing.model.setActionValue(text.toStdString()); });
    connect(m_field, &CommandField::left, this, [this] { m_editing.model.endTyping(); });
    connect(m_field, &CommandField::refused, this,
            [this] { m_remark->setText(tr("That text is too long for a command, so it was left out.")); });
    connect(m_confirmed, &QCheckBox::clicked, this, [this](bool isOn) {
        // The person confirms the text on the screen, even if another one is stored.
        if (isOn)
            m_editing.model.setActionValue(m_field->toPlainText().toStdString());
        m_editing.model.setShellCommandAcknowledged(isOn);
    });
}

/// A check box does not wrap its own words.
QWidget* CommandPart::makeConfirmation() {
    auto* confirmation = new QWidget;
    auto* line = new QHBoxLayout(confirmation);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Unit::of(kGap));
    line->addWidget(m_confirmed);
    line->addWidget(m_confirmation, 1);
    m_confirmed->setAccessibleName(m_confirmation->text());
    m_confirmation->setBuddy(m_confirmed);
    m_confirmation->installEventFilter(this);
    return confirmation;
}

void CommandPart::follow(const RuleEditorContent& content) {
    const GestureAction& action = content.rule.action;
    m_field->follow(QString::fromStdString(action.value));
    const bool isTooLong = action.value.size() > CommandField::longest;
    const bool canBeConfirmed = !trimmed(action.value).empty() && !isTooLong;
    m_confirmed->setChecked(action.isShellCommandAcknowledged());
    m_confirmed->setEnabled(canBeConfirmed);
    m_confirmation->setEnabled(canBeConfirmed);
    if (isTooLong)
        m_remark->setText(tr("This command is too long to run, so only its beginning is shown."));
    else
        m_remark->setText(content.mustConfirmAgain ? tr("The command changed, so it must be confirmed again. Until "
                                                        "then the rule stays off.")
                                                   : QString());
    m_confirmed->setAccessibleDescription(m_remark->text());
    m_notice->setVisible(!ShellCommandSettings::isEnabled(m_editing.desktop.defaults()));
}

bool CommandPart::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && watched == m_confirmation && m_confirmed->isEnabled()) {
        m_confirmed->setFocus(Qt::MouseFocusReason);
        m_confirmed->click();
    }
    return ActionPart::eventFilter(watched, event);
}

}  // namespace kinesta
