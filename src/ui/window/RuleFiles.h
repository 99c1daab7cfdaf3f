#pragma once

#include <QMimeData>
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

    /// Whether one file is dragged.
    static bool takes(const QMimeData& dragged);
    /// Imports the file soon: the program from which it comes waits until the drop has ended. False if it is none.
    bool drop(const QMimeData& dropped);

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
