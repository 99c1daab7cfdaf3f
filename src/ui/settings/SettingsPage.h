#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/widgets/Page.h"

namespace kinesta {

/// All settings. Each change counts at once.
class SettingsPage final : public Page {
    Q_OBJECT

  public:
    /// All must outlive this.
    SettingsPage(const WindowParts& parts, WindowCommands& commands);

    /// Shows why a rule file could not be imported or exported; nothing if the last one could.
    void setTransferProblem(const QString& problem);
};

}  // namespace kinesta
