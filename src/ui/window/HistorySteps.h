#pragma once

#include <QCoreApplication>

#include "app/RuleHistory.h"
#include "ui/WindowCommands.h"

namespace kinesta {

/// Takes the window's last step back or repeats it, says what that did, and shows the rule that it changed.
class HistorySteps final {
    Q_DECLARE_TR_FUNCTIONS(kinesta::HistorySteps)

  public:
    /// The referents must outlive this.
    HistorySteps(RuleHistory& history, WindowCommands& commands) : m_history(history), m_commands(commands) {}

    void undo();
    void redo();

  private:
    struct Sentences {
        const char* order;
        const char* replacement;
        const char* other;
    };
    void show(const RuleHistory::Moved& moved, const Sentences& sentences);

    RuleHistory& m_history;
    WindowCommands& m_commands;
};

}  // namespace kinesta
