#pragma once

#include "rules/ActionKind.h"
#include "support/Picture.h"

namespace kinesta {

/// The symbol of an action, 16 × 16.
const Picture& actionCueSymbol(ActionKind kind);

}  // namespace kinesta
