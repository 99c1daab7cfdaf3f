#include "ui/action/AddressPart.h"

#include <QVBoxLayout>

#include "app/ActionObstacle.h"
#include "ui/action/FieldColumn.h"
#include "ui/models/ActionWords.h"

namespace kinesta {

AddressPart::AddressPart(const ActionEditing& editing)
    : m_editing(editing),
      m_row(new Row(tr("Address"))),
      m_field(new TextField(tr("Address"), TextField::Form::code)),
      m_problem(new Remark(Remark::Kind::error)) {
    m_field->setPlaceholderText(QStringLiteral("https://"));
    m_row->setWideControl(fieldColumn({m_field, m_problem}));
    m_row->title().setBuddy(m_field);
    connect(m_field, &TextField::typed, this,
            [this](const QString& text) { m_editing.model.setActionValue(text.toStdString()); });
    connect(m_field, &TextField::left, this, [this] {
        m_editing.model.endTyping();
        check();
    });
}

void AddressPart::follow(const RuleEditorContent& content) {
    m_field->follow(QString::fromStdString(content.rule.action.value));
    check();
}

void AddressPart::check() {
    const GestureAction& action = m_editing.model.content().value().rule.action;
    const auto state = m_field->hasFocus() ? AddressState::beingTyped : AddressState::complete;
    const auto problem = addressProblem(action.value, !obstacleTo(action, m_editing.desktop), state);
    m_problem->setText(QString::fromStdString(problem.value_or("")));
    m_field->setAccessibleDescription(m_problem->text());
    m_field->setProperty("error", problem.has_value());
    m_field->update();
}

}  // namespace kinesta
