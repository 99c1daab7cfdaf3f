#pragma once

#include <QPushButton>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/models/WorksHereModel.h"
#include "ui/overview/MarkedRow.h"
#include "ui/overview/StepNumber.h"
#include "ui/overview/TerminalCommand.h"
#include "ui/widgets/Card.h"

namespace kinesta {

/// The three steps of the first launch: let Kinesta read the touchpad, try a gesture, add one.
class WelcomeSteps final : public Card {
    Q_OBJECT

  public:
    WelcomeSteps(const WindowParts& parts, WindowCommands& commands, QWidget* parent = nullptr);

    void show(const OverviewContent& overview, const WorksHereContent& worksHere);

  private:
    void showReading(const FindingRow& touchpad);

    WindowCommands& m_commands;
    StepNumber* m_numbers[3]{new StepNumber(1), new StepNumber(2), new StepNumber(3)};
    MarkedRow* m_read;
    TerminalCommand* m_command = nullptr;
    QPushButton* m_allow;
    QPushButton* m_try;
};

}  // namespace kinesta
