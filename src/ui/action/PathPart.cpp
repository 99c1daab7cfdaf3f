#include "ui/action/PathPart.h"

#include <QFileDialog>
#include <QMenu>
#include <QPushButton>

#include "app/ActionObstacle.h"
#include "support/Text.h"
#include "ui/action/FieldColumn.h"
#include "ui/action/WrappingLine.h"

namespace kinesta {

PathPart::PathPart(const ActionEditing& editing)
    : m_editing(editing),
      m_row(new Row(tr("Path"))),
      m_field(new TextField(tr("Path"), TextField::Form::code)),
      m_choose(new QPushButton(tr("Choose…"))),
      m_caution(new Remark(Remark::Kind::caution)) {
    auto* line = new WrappingLine;
    line->add(m_field, 1);
    line->add(m_choose);
    // No file dialog of Qt's offers files and folders at once.
    auto* menu = new QMenu(m_choose);
    menu->addAction(tr("Choose a file…"), this, [this] { choose(Wanted::file); });
    menu->addAction(tr("Choose a folder…"), this, [this] { choose(Wanted::folder); });
    m_choose->setMenu(menu);
    m_row->setWideControl(fieldColumn({line, m_caution}));
    m_row->title().setBuddy(m_field);
    connect(m_field, &TextField::typed, this,
            [this](const QString& text) { m_editing.model.setActionValue(text.toStdString()); });
    connect(m_field, &TextField::left, this, [this] { m_editing.model.endTyping(); });
}

void PathPart::follow(const RuleEditorContent& content) {
    const GestureAction& action = content.rule.action;
    m_field->follow(QString::fromStdString(action.value));
    const bool isMissing = !trimmed(action.value).empty() && obstacleTo(action, m_editing.desktop);
    m_caution->setText(isMissing ? tr("There is nothing at this path now.") : QString());
    m_field->setAccessibleDescription(m_caution->text());
}

void PathPart::choose(Wanted wanted) {
    auto* dialog =
        new QFileDialog(m_row->window(), wanted == Wanted::file ? tr("Choose a file") : tr("Choose a folder"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(wanted == Wanted::file ? QFileDialog::ExistingFile : QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly, wanted == Wanted::folder);
    if (m_field->text().startsWith(QLatin1Char('/')))
        dialog->selectFile(m_field->text());
    // The rule may go while the dialog is open, and with it this part.
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
        m_editing.model.endTyping();
        m_editing.model.setActionValue(path.toStdString());
        m_editing.model.endTyping();
    });
    connect(this, &QObject::destroyed, dialog, &QDialog::reject);
    dialog->open();
}

}  // namespace kinesta
