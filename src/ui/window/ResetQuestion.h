#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "app/RuleHistory.h"
#include "app/SettingsReset.h"
#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"

namespace kinesta {

/// Asks whether to put all settings back, does it, and offers to undo it.
class ResetQuestion final : public QObject {
    Q_OBJECT

  public:
    /// `onChange` reads all settings again. All must outlive this, which belongs to `window`.
    ResetQuestion(const WindowParts& parts, RuleHistory& history, WindowCommands& commands,
                  std::function<void()> onChange, QWidget* window);

    /// Has no effect while it is asked.
    void ask();

  private:
    void reset();

    RuleHistory& m_history;
    WindowCommands& m_commands;
    std::function<void()> m_onChange;
    QWidget* m_window;
    SettingsReset m_settings;
    SettingsReset::Backup m_backup;
    QPointer<QMessageBox> m_box;
};

}  // namespace kinesta
