#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "ui/WindowCommands.h"

namespace kinesta {

/// A command line for a terminal, with a button that copies it.
class TerminalCommand final : public QWidget {
    Q_OBJECT

  public:
    TerminalCommand(const QString& command, WindowCommands& commands, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void measure();

    QLineEdit* m_field;
    QPushButton* m_copy;
};

}  // namespace kinesta
