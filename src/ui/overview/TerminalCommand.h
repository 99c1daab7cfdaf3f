#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "ui/WindowCommands.h"

namespace kinesta {

/// A command line for a terminal, with a button that copies it.
<<<<<<<< HEAD:src/ui/overview/TerminalCommand.h
class TerminalCommand final : public QWidget {
    Q_OBJECT

  public:
    TerminalCommand(const QString& command, WindowCommands& commands, QWidget* parent = nullptr);
========
class CommandToCopy final : public QWidget {
    Q_OBJECT

  public:
    CommandToCopy(const QString& command, WindowCommands& commands, QWidget* parent = nullptr);
>>>>>>>> wt/style:src/ui/overview/CommandToCopy.h

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void measure();

    QLineEdit* m_field;
    QPushButton* m_copy;
};

}  // namespace kinesta
