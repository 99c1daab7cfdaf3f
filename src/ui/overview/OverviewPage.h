#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/OverviewModel.h"
#include "ui/widgets/Page.h"

namespace kinesta {

/// Whether gestures are recognized, the last one, and what works on this machine.
class OverviewPage final : public Page {
    Q_OBJECT

  public:
    /// All must outlive this.
    OverviewPage(OverviewModel& model, const WindowParts& parts, WindowCommands& commands);
};

}  // namespace kinesta
