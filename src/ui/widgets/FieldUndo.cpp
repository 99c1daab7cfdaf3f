#include "ui/widgets/FieldUndo.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <optional>

namespace kinesta {
namespace {

constexpr const char* kIsRecorded = "recorded";

struct Steps {
    bool undo = false;
    bool redo = false;
};

/// Nothing if it is no field.
std::optional<Steps> ownSteps(const QObject* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return Steps{line->isUndoAvailable(), line->isRedoAvailable()};
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(field))
        return Steps{text->document()->isUndoAvailable(), text->document()->isRedoAvailable()};
    return std::nullopt;
}

}  // namespace

void FieldUndo::setRecorded(QWidget& field, bool isRecorded) { field.setProperty(kIsRecorded, isRecorded); }

void FieldUndo::forgetSteps(QWidget* field) {
    if (field == nullptr || !field->property(kIsRecorded).toBool())
        return;
    if (auto* text = qobject_cast<QPlainTextEdit*>(field)) {
        text->document()->clearUndoRedoStacks();
    } else if (auto* line = qobject_cast<QLineEdit*>(field)) {
        const int cursor = line->cursorPosition();
        line->setText(line->text());
        line->setCursorPosition(cursor);
    }
}

bool FieldUndo::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride)
        return takeKey(*watched, *static_cast<QKeyEvent*>(event));
    if (event->type() != QEvent::ContextMenu)
        return false;
    const QPoint at = static_cast<QContextMenuEvent*>(event)->globalPos();
    auto* line = qobject_cast<QLineEdit*>(watched);
    auto* text = qobject_cast<QPlainTextEdit*>(watched->parent());
    if (line != nullptr && line->property(kIsRecorded).toBool())
        showMenu(*line->createStandardContextMenu(), at);
    else if (text != nullptr && text->viewport() == watched && text->property(kIsRecorded).toBool())
        showMenu(*text->createStandardContextMenu(), at);
    else
        return false;
    return true;
}

bool FieldUndo::takeKey(const QObject& field, QKeyEvent& event) const {
    const bool isUndo = event.matches(QKeySequence::Undo);
    if (!isUndo && !event.matches(QKeySequence::Redo))
        return false;
    const std::optional<Steps> own = ownSteps(&field);
    if (!own)
        return false;
    const bool isOwn = isUndo ? own->undo : own->redo && !m_window.canRedo();
    if (isOwn && !field.property(kIsRecorded).toBool())
        return false;
    event.ignore();
    return true;  // the shortcut of the window takes the key
}

void FieldUndo::showMenu(QMenu& menu, const QPoint& at) const {
    const auto lead = [this, actions = menu.actions()](int index, bool isPossible, const std::function<void()>& act) {
        QAction* action = actions.at(index);
        action->disconnect(SIGNAL(triggered(bool)));
        action->setEnabled(isPossible);
        connect(action, &QAction::triggered, this, act);
    };
    // They are the first two entries.
    lead(0, m_window.canUndo(), m_window.undo);
    lead(1, m_window.canRedo(), m_window.redo);
    menu.setAttribute(Qt::WA_DeleteOnClose);
    menu.popup(at);
}

}  // namespace kinesta
