#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include "app/RuleHistory.h"
#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"

namespace kinesta {

/// Import and export of rule files in the window.
class RuleFiles final : public QObject {
    Q_OBJECT

  public:
    /// All must outlive this, which belongs to `window`.
    RuleFiles(const WindowParts& parts, RuleHistory& history, WindowCommands& commands, QWidget* window);

    /// Asks for the file.
    void import();
    /// Replaces all rules by those of the file. It can be undone, and a copy of the replaced ones is kept.
    void importFile(const QString& file);
    void exportAll();

  Q_SIGNALS:
    /// Why a file could not be read or written, as sentences; empty if it could.
    void problemChanged(const QString& problem);
    /// Where the replaced rules are kept.
    void copyKept(const QString& file);

  private:
    const WindowParts& m_parts;
    RuleHistory& m_history;
    WindowCommands& m_commands;
    QWidget* m_window;
};

}  // namespace kinesta
