#include "ui/window/HistorySteps.h"

#include <QApplication>

#include "ui/widgets/FieldUndo.h"

namespace kinesta {

void HistorySteps::undo() {
    FieldUndo::forgetSteps(QApplication::focusWidget());
    show(m_history.undo(), {.order = QT_TR_NOOP("Order restored"),
                            .replacement = QT_TR_NOOP("The rules are as they were before the import"),
                            .other = QT_TR_NOOP("The settings are as they were before")});
}

void HistorySteps::redo() {
    FieldUndo::forgetSteps(QApplication::focusWidget());
    show(m_history.redo(), {.order = QT_TR_NOOP("Order changed again"),
                            .replacement = QT_TR_NOOP("The rules of the file are back"),
                            .other = QT_TR_NOOP("The settings are as they were at first")});
}

void HistorySteps::show(const RuleHistory::Moved& moved, const Sentences& sentences) {
    switch (moved.kind) {
        case RuleHistory::Moved::Kind::nothing:
        case RuleHistory::Moved::Kind::edit:
            break;
        case RuleHistory::Moved::Kind::order:
            m_commands.showToast(tr(sentences.order), {}, {});
            break;
        case RuleHistory::Moved::Kind::replacement:
            m_commands.showToast(tr(sentences.replacement), {}, {});
            break;
        case RuleHistory::Moved::Kind::other:
            m_commands.showToast(tr(sentences.other), {}, {});
            break;
    }
    if (moved.rule)
        m_commands.select(WindowSelection::rule(*moved.rule));
}

}  // namespace kinesta
