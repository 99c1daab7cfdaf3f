#pragma once

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"
#include "ui/models/RuleEditorModel.h"
#include "ui/widgets/Card.h"

namespace kinesta {

/// The action of a rule: its kind, what belongs to the kind, and the cue.
class ActionCard final : public Card {
    Q_OBJECT

  public:
    /// All must outlive this.
    ActionCard(RuleEditorModel& model, const WindowParts& parts, WindowCommands& commands);
};

}  // namespace kinesta
