#pragma once

#include <QObject>
#include <vector>

#include "app/Desktop.h"
#include "app/InstalledApplications.h"
#include "ui/WindowCommands.h"
#include "ui/models/RuleEditorModel.h"

namespace kinesta {

/// What the rows of the action card show and change.
struct ActionEditing {
    RuleEditorModel& model;
    Desktop& desktop;
    const InstalledApplications& applications;
    WindowCommands& commands;
};

/// The rows that one kind of action has in its card. The card owns the rows and shows each that is not hidden.
class ActionPart : public QObject {
    Q_OBJECT

  public:
    /// From top to bottom, always the same.
    virtual std::vector<QWidget*> rows() const = 0;
    /// Shows what the rule has now. Also called when what is outside of the rule may have changed: files, settings.
    virtual void follow(const RuleEditorContent& content) = 0;
};

}  // namespace kinesta
