#include "ui/widgets/FieldUndo.h"

#include <QKeyEvent>
#include <QLineEdit>
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
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isUndo = key->matches(QKeySequence::Undo);
    if (!isUndo && !key->matches(QKeySequence::Redo))
        return false;
    const std::optional<Steps> own = ownSteps(watched);
    if (!own)
        return false;
    const bool isOwn = isUndo ? own->undo : own->redo && !m_canWindowRedo();
    if (isOwn && !watched->property(kIsRecorded).toBool())
        return false;
    event->ignore();
    return true;  // the shortcut of the window takes the key
}

}  // namespace kinesta
