#pragma once

#include <optional>
#include <vector>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/WorksHereModel.h"
#include "ui/overview/MarkedRow.h"
#include "ui/widgets/Card.h"

namespace kinesta {

/// What works on this machine: a row a finding, or one row if everything is fine.
class FindingList final : public Card {
    Q_OBJECT

  public:
    FindingList(WorksHereModel& model, const WindowParts& parts, WindowCommands& commands, QWidget* parent = nullptr);

    /// Leaves out the touchpad, of which the steps of the welcome tell.
    void setWithoutTouchpad(bool isWithout);

  private:
    void rebuild();
    MarkedRow* rowOf(const FindingRow& finding);
    QWidget* atEndOf(const FindingRow& finding);
    MarkedRow* sentence(FindingRow::Mark mark, const QString& what, const QString& why);

    WorksHereModel& m_model;
    const WindowParts& m_parts;
    WindowCommands& m_commands;
    bool m_isWithoutTouchpad = false;
    std::vector<QWidget*> m_rows;
    Subscription m_observer;
};

}  // namespace kinesta
