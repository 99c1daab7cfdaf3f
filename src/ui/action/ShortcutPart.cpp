#include "ui/action/ShortcutPart.h"

#include <optional>

#include "rules/CommonMacShortcut.h"
#include "support/Translation.h"
#include "ui/action/FieldColumn.h"

namespace kinesta {

ShortcutPart::ShortcutPart(const ActionEditing& editing)
    : m_editing(editing),
      m_row(new Row(tr("Shortcut"))),
      m_recorder(new ShortcutRecorder(editing.desktop)),
      m_menus(new ShortcutMenus(editing.desktop)) {
    m_row->setControl(fieldColumn({m_recorder, m_menus}));
    m_row->title().setBuddy(m_recorder);
    connect(m_recorder, &ShortcutRecorder::recorded, this,
            [this](bool hasKey, quint16 keyCode, ShortcutModifiers modifiers) {
                m_editing.model.setShortcut(hasKey ? std::optional<std::uint16_t>(keyCode) : std::nullopt, modifiers);
            });
    connect(m_recorder, &ShortcutRecorder::hintChanged, this, [this] { showDetail(); });
    connect(m_menus, &ShortcutMenus::chosen, this,
            [this](quint16 keyCode, ShortcutModifiers modifiers) { m_editing.model.setShortcut(keyCode, modifiers); });
}

void ShortcutPart::follow(const RuleEditorContent& content) {
    const GestureAction& action = content.rule.action;
    m_recorder->setShortcut(action.keyCode, action.modifiers);
    m_menus->setShortcut(action.keyCode, action.modifiers);
    showDetail();
}

/// What the recorder says, else the title of a known shortcut.
void ShortcutPart::showDetail() {
    const GestureAction& action = m_editing.model.content().value().rule.action;
    QString detail = m_recorder->hint();
    if (detail.isEmpty() && action.keyCode)
        if (const auto title = CommonMacShortcut::actionTitle(*action.keyCode, action.modifiers))
            detail = QString::fromStdString(translated(*title));
    m_row->setDetail(detail);
}

}  // namespace kinesta
