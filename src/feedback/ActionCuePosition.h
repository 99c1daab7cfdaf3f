#pragma once

#include "support/EnumTable.h"

namespace kinesta {

/// Where on the screen the cue appears.
enum class ActionCuePosition { center, topRight, bottomRight };

template <>
std::span<const EnumRow<ActionCuePosition>> enumTable();

}  // namespace kinesta
