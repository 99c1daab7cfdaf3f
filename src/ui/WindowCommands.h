#pragma once

#include <QString>
#include <functional>

#include "ui/models/WindowSelection.h"

namespace kinesta {

/// What a page asks of the window around it.
class WindowCommands {
  public:
    virtual ~WindowCommands() = default;

    virtual void select(const WindowSelection& selection) = 0;
    virtual void addRule() = 0;
    /// Adds a rule for the gesture that was detected last.
    virtual void addRuleForLastGesture() = 0;
    virtual void tryGesture() = 0;
    /// Kinesta's window steps aside, then the action of the rule runs.
    virtual void runAction(const Uuid& rule) = 0;
    /// Asks whether to delete the marked rules.
    virtual void deleteRules() = 0;
    virtual void importRules() = 0;
    virtual void exportRules() = 0;
    virtual void resetSettings() = 0;
    virtual void showAbout() = 0;
    virtual void copyReport() = 0;
    /// Says for a moment what was done. `action` is a word such as “Undo”, or empty.
    virtual void showToast(const QString& text, const QString& action, std::function<void()> onAction) = 0;
    /// Takes back the last step and says so.
    virtual void undo() = 0;
};

}  // namespace kinesta
