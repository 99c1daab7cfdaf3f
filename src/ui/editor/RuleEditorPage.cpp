#include "ui/editor/RuleEditorPage.h"

#include "app/Desktop.h"
#include "ui/action/ActionCard.h"
#include "ui/editor/GestureCard.h"

namespace kinesta {

RuleEditorPage::RuleEditorPage(const Uuid& rule, RuleListModel& /*list*/, RuleHistory& history,
                               const WindowParts& parts, WindowCommands& commands)
    : m_model({.store = parts.store,
               .history = history,
               .testSession = parts.testSession,
               .system = parts.desktop.gestureSystem()},
              rule) {
    add(new GestureCard(m_model, parts, commands));
    addHeading(tr("Action"));
    add(new ActionCard(m_model, parts, commands));
}

void RuleEditorPage::focusName() {}

}  // namespace kinesta
