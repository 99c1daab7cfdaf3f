#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/widgets/Card.h"

namespace kinesta {

/// The gesture of a rule: its type, what there is to choose for it, and the pad that performs it.
class GestureCard final : public Card {
    Q_OBJECT

  public:
    /// All must outlive this.
    GestureCard(RuleEditorModel& model, const WindowParts& parts, WindowCommands& commands);
};

}  // namespace kinesta
