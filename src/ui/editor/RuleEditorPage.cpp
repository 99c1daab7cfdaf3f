#include "ui/editor/RuleEditorPage.h"

#include <QKeyEvent>

#include "app/Desktop.h"
#include "ui/action/ActionCard.h"
#include "ui/editor/GestureCard.h"
#include "ui/editor/RuleHeader.h"

namespace kinesta {

RuleEditorPage::RuleEditorPage(const Uuid& rule, RuleListModel& list, RuleHistory& history, const WindowParts& parts,
                               WindowCommands& commands)
    : m_model({.store = parts.store,
               .history = history,
               .testSession = parts.testSession,
               .mainThread = parts.desktop.mainLoop(),
               .system = parts.desktop.gestureSystem()},
              rule),
      m_header(new RuleHeader(rule, m_model, list, history, commands)) {
    add(m_header);
    add(new GestureCard(m_model, parts, commands));
    addHeading(tr("Action"));
    add(new ActionCard(m_model, parts, commands));
}

// Everything on the page goes before the model that it shows.
RuleEditorPage::~RuleEditorPage() { delete takeWidget(); }

void RuleEditorPage::focusName() { m_header->focusName(); }

void RuleEditorPage::setBackButton(QWidget* button) { m_header->setBackButton(button); }

void RuleEditorPage::keyPressEvent(QKeyEvent* event) {
    // Before it closes the window.
    if (event->key() == Qt::Key_Escape && m_model.content().value().waitsForGesture)
        return stopWaiting();
    Page::keyPressEvent(event);
}

void RuleEditorPage::hideEvent(QHideEvent* event) {
    stopWaiting();
    Page::hideEvent(event);
}

}  // namespace kinesta
