#include "ui/editor/GestureCard.h"

namespace kinesta {

GestureCard::GestureCard(RuleEditorModel& /*model*/, const WindowParts& /*parts*/, WindowCommands& /*commands*/) {}

}  // namespace kinesta
