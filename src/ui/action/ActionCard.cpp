#include "ui/action/ActionCard.h"

namespace kinesta {

ActionCard::ActionCard(RuleEditorModel& /*model*/, const WindowParts& /*parts*/, WindowCommands& /*commands*/) {}

}  // namespace kinesta
