#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "rules/ActionKind.h"

namespace kinesta {

/// What an action of this kind does, in one or more sentences.
std::string actionSentence(ActionKind kind);

enum class AddressState { beingTyped, complete };

/// What is wrong with an address; nothing for one that `canBeOpened`, for an empty one, and while its beginning may
/// still become http:// or https://.
std::optional<std::string> addressProblem(std::string_view address, bool canBeOpened, AddressState state);

}  // namespace kinesta
