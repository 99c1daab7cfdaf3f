#include "ui/window/FieldUndo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace kinesta {

bool FieldUndo::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isUndo = key->matches(QKeySequence::Undo);
    if (!isUndo && !key->matches(QKeySequence::Redo))
        return false;
    bool hasSteps = true;
    if (const auto* line = qobject_cast<QLineEdit*>(watched))
        hasSteps = isUndo ? line->isUndoAvailable() : line->isRedoAvailable();
    else if (const auto* text = qobject_cast<QPlainTextEdit*>(watched))
        hasSteps = isUndo ? text->document()->isUndoAvailable() : text->document()->isRedoAvailable();
    else
        return false;
    if (hasSteps)
        return false;
    event->ignore();
    return true;  // the shortcut of the window takes the key
}

}  // namespace kinesta
